#pragma once

#include "mp/wide.h"

#include <Standard_Transient.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_StepReaderData.hxx>
#include <XSControl_WorkSession.hxx>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class StepRecords;

/// A parameter of a record as it stands in a STEP file. What it is not is empty.
struct StepParameter
{
    std::string type; // of a typed value, such as LENGTH_MEASURE
    mp::wstring text;
    std::string word; // an enumeration or a logical, without its dots
    int reference = 0;
    double number = 0;
    std::vector<StepParameter> list;
    std::vector<double> numbers; // of a list of nothing else
};

/// A record of a STEP file, with its parameters counted from 0. There is always something to be read from it: what is
/// missing, of another kind or in a record that is not there, is empty, and so are all steps from there on.
class StepRecord
{
public:
    StepRecord() = default;

    explicit operator bool() const { return m_data != nullptr; }
    bool operator==(const StepRecord& other) const { return m_data == other.m_data; }

    /// The number behind its # in the file, or 0.
    int id() const;

    /// True when this is the type, or one of the types, that the record names.
    bool is(std::string_view type) const;

    /// Of a record of several types the one with the parameters of this type; any other record itself, since inherited
    /// parameters come first there.
    StepRecord as(std::string_view type) const;

    const StepParameter& operator[](std::size_t parameter) const;
    mp::wstring text(std::size_t parameter) const { return (*this)[parameter].text; }

    /// The record to which a parameter refers.
    StepRecord next(std::size_t parameter) const;

    /// Those to which the parameter's list refers, or the one of the parameter itself.
    std::vector<StepRecord> nexts(std::size_t parameter) const;

    /// The records of the parameter's list, in their places: an empty one for each that is not there.
    std::vector<StepRecord> elements(std::size_t parameter) const;

    /// The records of a type that refer to this one, in the order of the file.
    std::vector<StepRecord> users(std::string_view type) const;

private:
    friend class StepRecords;

    struct Part
    {
        std::string type;
        std::vector<StepParameter> parameters;
    };

    struct Data
    {
        int id = 0;
        std::vector<Part> parts; // one for each of its types
    };

    StepRecord(const StepRecords& all, const Data& data, std::size_t part = 0)
        : m_all(&all)
        , m_data(&data)
        , m_part(part)
    {
    }

    const StepRecords* m_all = nullptr;
    const Data* m_data = nullptr;
    std::size_t m_part = 0;
};

/// The records of a STEP file as they stand in it, but for its geometry and its styles, which the kernel reads well and
/// of which there is most. Of two records with one id the first one counts. The kernel's own entities know product
/// manufacturing information only in part, and drop what is not as they expect it.
class StepRecords
{
public:
    /// Takes over the records of what a session reads while this lasts.
    class Keeper
    {
    public:
        Keeper(StepRecords& records, XSControl_WorkSession& session);
        Keeper(const Keeper&) = delete;
        Keeper& operator=(const Keeper&) = delete;
        ~Keeper();
    };

    StepRecords() = default;
    StepRecords(const StepRecords&) = delete;
    StepRecords& operator=(const StepRecords&) = delete;

    void add(const StepData_StepReaderData& data, int number);

    /// Finds the kernel's entities to which the records refer, in what it has read.
    void bind(const StepData_StepModel& model);

    /// All records of a type, in the order of the file.
    std::vector<StepRecord> all(std::string_view type) const;

    StepRecord find(int id) const;

    /// The kernel's entity with an id to which a record refers, or null.
    Handle(Standard_Transient) entity(int id) const;

    /// Null also when it is of another class.
    template <class Entity>
    Handle(Entity) entity(int id) const
    {
        return Handle(Entity)::DownCast(entity(id));
    }

private:
    friend class StepRecord;

    void noteReferences(const StepParameter& parameter, int user);

    std::map<int, StepRecord::Data> m_records; // by id
    std::map<std::string, std::vector<int>, std::less<>> m_byType;
    std::unordered_map<int, std::vector<int>> m_users;
    std::unordered_map<int, Handle(Standard_Transient)> m_entities; // to which records refer
};
