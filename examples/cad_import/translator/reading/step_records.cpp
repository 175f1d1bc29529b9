#include "reading/step_records.h"

#include "kernel/occt_text.h"

#include <Interface_Check.hxx>
#include <Interface_FileParameter.hxx>
#include <Interface_GeneralLib.hxx>
#include <Interface_ReaderLib.hxx>
#include <StepAP214.hxx>
#include <StepAP214_Protocol.hxx>
#include <StepData_GeneralModule.hxx>
#include <StepData_Protocol.hxx>
#include <StepData_ReadWriteModule.hxx>
#include <StepData_UndefinedEntity.hxx>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <iterator>
#include <unordered_set>

namespace
{

const int kUnknown = 0; // the number of an entity that a module does not know
const int kKept = 1;    // that of one that is only kept here
const int kDeepest = 8; // lists within lists: more than any schema has

// Geometry, and how it is styled.
bool isLeftToKernel(const TCollection_AsciiString& type)
{
    static const std::unordered_set<std::string_view> kTypes = {
        "ADVANCED_FACE",
        "AXIS2_PLACEMENT_3D",
        "BEZIER_CURVE",
        "B_SPLINE_CURVE",
        "B_SPLINE_CURVE_WITH_KNOTS",
        "B_SPLINE_SURFACE_WITH_KNOTS",
        "CARTESIAN_POINT",
        "CIRCLE",
        "CLOSED_SHELL",
        "COMPOSITE_CURVE",
        "COMPOSITE_CURVE_SEGMENT",
        "CONICAL_SURFACE",
        "COORDINATES_LIST",
        "CYLINDRICAL_SURFACE",
        "DEFINITIONAL_REPRESENTATION",
        "DIRECTION",
        "EDGE_CURVE",
        "EDGE_LOOP",
        "ELLIPSE",
        "FACE_BOUND",
        "FACE_OUTER_BOUND",
        "LINE",
        "OPEN_SHELL",
        "ORIENTED_EDGE",
        "OVER_RIDING_STYLED_ITEM",
        "PCURVE",
        "PLANE",
        "POLYLINE",
        "POLY_LOOP",
        "SEAM_CURVE",
        "SPHERICAL_SURFACE",
        "STYLED_ITEM",
        "SURFACE_CURVE",
        "SURFACE_OF_LINEAR_EXTRUSION",
        "SURFACE_OF_REVOLUTION",
        "TOROIDAL_SURFACE",
        "TRIMMED_CURVE",
        "VECTOR",
        "VERTEX_POINT",
    };
    return kTypes.count({type.ToCString(), static_cast<std::size_t>(type.Length())}) > 0;
}

// Some curves and surfaces have several types.
bool isLeftToKernel(const StepData_StepReaderData& data, int number)
{
    const TCollection_AsciiString& first = data.RecordType(number);
    return isLeftToKernel(first) ||
           (data.IsComplex(number) && (first == "BOUNDED_CURVE" || first == "BOUNDED_SURFACE"));
}

// What filled areas are drawn of. The kernel has no class for it, and would keep its lists as texts in a form that
// takes time by the square of their length.
bool isKeptHereOnly(const StepData_StepReaderData& data, int number)
{
    const TCollection_AsciiString& type = data.RecordType(number);
    return !data.IsComplex(number) &&
           (type == "COMPLEX_TRIANGULATED_SURFACE_SET" || type == "TRIANGULATED_SURFACE_SET");
}

bool isNumeric(const StepData_StepReaderData& data, int number)
{
    const int count = data.NbParams(number);
    for (int i = 1; i <= count; ++i)
    {
        const Interface_ParamType type = data.ParamType(number, i);
        if (type != Interface_ParamInteger && type != Interface_ParamReal)
        {
            return false;
        }
    }
    return count > 0;
}

StepParameter listOf(const StepData_StepReaderData& data, int number, int depth);

StepParameter parameterOf(const StepData_StepReaderData& data, int number, int position, int depth)
{
    StepParameter result;
    const Interface_FileParameter& parameter = data.Param(number, position);
    const char* const value = parameter.CValue();
    switch (parameter.ParamType())
    {
    case Interface_ParamInteger:
    case Interface_ParamReal:
        result.number = Interface_FileReaderData::Fastof(value);
        break;
    case Interface_ParamText:
    {
        Handle(TCollection_HAsciiString) text;
        Handle(Interface_Check) ignored = new Interface_Check;
        data.ReadString(number, position, "", ignored, text);
        result.text = occt_text::wide(text);
        break;
    }
    case Interface_ParamEnum:
    case Interface_ParamLogical:
        result.word = value;
        result.word.erase(std::remove(result.word.begin(), result.word.end(), '.'), result.word.end());
        break;
    case Interface_ParamIdent:
        // By its text: the kernel takes the number of a record that is not there for another one.
        result.reference = static_cast<int>(std::strtol(value + (*value == '#' ? 1 : 0), nullptr, 10));
        break;
    case Interface_ParamSub:
    {
        result = listOf(data, parameter.EntityNumber(), depth + 1);
        break;
    }
    default:
        break;
    }
    return result;
}

std::vector<StepParameter> parametersOf(const StepData_StepReaderData& data, int number, int depth)
{
    std::vector<StepParameter> all;
    for (int i = 1; i <= data.NbParams(number); ++i)
    {
        all.push_back(parameterOf(data, number, i, depth));
    }
    return all;
}

// A list, or a typed value, which the kernel holds as a list with a name.
StepParameter listOf(const StepData_StepReaderData& data, int number, int depth)
{
    StepParameter result;
    const TCollection_AsciiString& type = data.RecordType(number);
    const bool isTyped = type.Length() > 0 && std::isalpha(static_cast<unsigned char>(type.Value(1))) != 0;
    const int count = data.NbParams(number);
    if (isTyped && count == 1)
    {
        result = parameterOf(data, number, 1, depth);
    }
    else if (isNumeric(data, number))
    {
        for (int i = 1; i <= count; ++i)
        {
            result.numbers.push_back(Interface_FileReaderData::Fastof(data.ParamCValue(number, i)));
        }
    }
    else if (depth < kDeepest)
    {
        result.list = parametersOf(data, number, depth);
    }
    result.type = isTyped ? type.ToCString() : "";
    return result;
}

// Stands in the kernel's model for a record that is only kept here.
class KeptEntity : public StepData_UndefinedEntity
{
    DEFINE_STANDARD_RTTI_INLINE(KeptEntity, StepData_UndefinedEntity)
};

class KeptEntities : public StepData_GeneralModule
{
public:
    Standard_Boolean NewVoid(int /*number*/, Handle(Standard_Transient) & entity) const override
    {
        entity = new KeptEntity;
        return true;
    }
    void FillSharedCase(int /*number*/, const Handle(Standard_Transient) & /*entity*/,
                        Interface_EntityIterator& /*shared*/) const override
    {
    }
    void CheckCase(int /*number*/, const Handle(Standard_Transient) & /*entity*/, const Interface_ShareTool& /*shares*/,
                   Handle(Interface_Check) &
                   /*check*/) const override
    {
    }
    void CopyCase(int /*number*/, const Handle(Standard_Transient) & /*from*/,
                  const Handle(Standard_Transient) &
                  /*to*/,
                  Interface_CopyTool& /*tool*/) const override
    {
    }

    DEFINE_STANDARD_RTTI_INLINE(KeptEntities, StepData_GeneralModule)
};

// Keeps records while they are recognised, which is once for each, and before the kernel reads any of them.
class Recognition : public StepData_ReadWriteModule
{
public:
    StepRecords* records = nullptr;

    int CaseNum(const Handle(Interface_FileReaderData) & data, int number) const override
    {
        if (records != nullptr)
        {
            const auto all = Handle(StepData_StepReaderData)::DownCast(data);
            records->add(*all, number);
            return isKeptHereOnly(*all, number) ? kKept : kUnknown;
        }
        return kUnknown;
    }

    int CaseStep(const TCollection_AsciiString& /*type*/) const override { return kUnknown; }

    // Nothing else is read or written by this module: the kernel's own ones come after it.
    void ReadStep(int /*number*/, const Handle(StepData_StepReaderData) & /*data*/, int /*record*/,
                  Handle(Interface_Check) & /*check*/, const Handle(Standard_Transient) &
                  /*entity*/) const override
    {
    }
    const TCollection_AsciiString& StepType(int /*number*/) const override { return m_noType; }
    void WriteStep(int /*number*/, StepData_StepWriter& /*writer*/, const Handle(Standard_Transient) &
                   /*entity*/) const override
    {
    }

    DEFINE_STANDARD_RTTI_INLINE(Recognition, StepData_ReadWriteModule)

private:
    TCollection_AsciiString m_noType;
};

// All that the kernel reads, behind that module.
class Protocol : public StepData_Protocol
{
public:
    int NbResources() const override { return 1; }
    Handle(Interface_Protocol) Resource(int /*number*/) const override { return StepAP214::Protocol(); }
    Standard_CString SchemaName() const override { return StepAP214::Protocol()->SchemaName(); }
    int TypeNumber(const Handle(Standard_Type) & type) const override
    {
        return type == STANDARD_TYPE(KeptEntity) ? kKept : kUnknown;
    }

    DEFINE_STANDARD_RTTI_INLINE(Protocol, StepData_Protocol)
};

struct Keeping
{
    Handle(Protocol) protocol = new Protocol;
    Handle(Recognition) recognition = new Recognition;

    Keeping()
    {
        Interface_ReaderLib::SetGlobal(recognition, protocol);
        Interface_GeneralLib::SetGlobal(new KeptEntities, protocol);
    }
};

Keeping& keeping()
{
    static Keeping keeping;
    return keeping;
}

} // namespace

int StepRecord::id() const
{
    return m_data != nullptr ? m_data->id : 0;
}

bool StepRecord::is(std::string_view type) const
{
    return m_data != nullptr && std::any_of(m_data->parts.begin(), m_data->parts.end(),
                                            [type](const Part& part) { return part.type == type; });
}

StepRecord StepRecord::as(std::string_view type) const
{
    if (m_data == nullptr || m_data->parts.size() == 1)
    {
        return *this;
    }
    for (std::size_t i = 0; i < m_data->parts.size(); ++i)
    {
        if (m_data->parts[i].type == type)
        {
            return {*m_all, *m_data, i};
        }
    }
    return {};
}

const StepParameter& StepRecord::operator[](std::size_t parameter) const
{
    static const StepParameter kMissing;
    return m_data != nullptr && parameter < m_data->parts[m_part].parameters.size()
               ? m_data->parts[m_part].parameters[parameter]
               : kMissing;
}

StepRecord StepRecord::next(std::size_t parameter) const
{
    return m_data != nullptr ? m_all->find((*this)[parameter].reference) : StepRecord();
}

std::vector<StepRecord> StepRecord::nexts(std::size_t parameter) const
{
    std::vector<StepRecord> records;
    if (const StepRecord one = next(parameter))
    {
        records.push_back(one);
    }
    for (const StepParameter& element : (*this)[parameter].list)
    {
        if (const StepRecord record = m_all->find(element.reference))
        {
            records.push_back(record);
        }
    }
    return records;
}

std::vector<StepRecord> StepRecord::elements(std::size_t parameter) const
{
    std::vector<StepRecord> records;
    for (const StepParameter& element : (*this)[parameter].list)
    {
        records.push_back(m_all->find(element.reference));
    }
    return records;
}

std::vector<StepRecord> StepRecord::users(std::string_view type) const
{
    std::vector<StepRecord> records;
    const auto found = m_data != nullptr ? m_all->m_users.find(m_data->id) : decltype(m_all->m_users.end())();
    if (m_data == nullptr || found == m_all->m_users.end())
    {
        return records;
    }
    for (const int id : found->second)
    {
        const StepRecord user = m_all->find(id);
        if (user.is(type))
        {
            records.push_back(user);
        }
    }
    return records;
}

StepRecords::Keeper::Keeper(StepRecords& records, XSControl_WorkSession& session)
{
    keeping().recognition->records = &records;
    session.SetProtocol(keeping().protocol);
}

StepRecords::Keeper::~Keeper()
{
    keeping().recognition->records = nullptr;
}

void StepRecords::add(const StepData_StepReaderData& data, int number)
{
    const int id = data.RecordIdent(number);
    if (id == 0 || m_records.count(id) > 0 || isLeftToKernel(data, number)) // those of the header have no id
    {
        return;
    }
    StepRecord::Data& record = m_records[id];
    record = {id, {}};
    for (int part = number; part > 0; part = data.NextForComplex(part))
    {
        record.parts.push_back({data.RecordType(part).ToCString(), parametersOf(data, part, 0)});
        m_byType[record.parts.back().type].push_back(id);
        for (const StepParameter& parameter : record.parts.back().parameters)
        {
            noteReferences(parameter, id);
        }
    }
}

void StepRecords::noteReferences(const StepParameter& parameter, int user)
{
    if (parameter.reference != 0)
    {
        std::vector<int>& users = m_users[parameter.reference];
        if (users.empty() || users.back() != user)
        {
            users.push_back(user);
        }
    }
    for (const StepParameter& element : parameter.list)
    {
        noteReferences(element, user);
    }
}

void StepRecords::bind(const StepData_StepModel& model)
{
    for (int i = 1; i <= model.NbEntities(); ++i)
    {
        const int id = model.IdentLabel(model.Value(i));
        if (m_users.count(id) > 0)
        {
            m_entities[id] = model.Value(i);
        }
    }
}

Handle(Standard_Transient) StepRecords::entity(int id) const
{
    const auto found = m_entities.find(id);
    return found != m_entities.end() ? found->second : Handle(Standard_Transient)();
}

std::vector<StepRecord> StepRecords::all(std::string_view type) const
{
    std::vector<StepRecord> records;
    const auto found = m_byType.find(type);
    if (found != m_byType.end())
    {
        std::transform(found->second.begin(), found->second.end(), std::back_inserter(records),
                       [this](int id) { return find(id); });
    }
    return records;
}

StepRecord StepRecords::find(int id) const
{
    const auto found = m_records.find(id);
    return found != m_records.end() ? StepRecord(*this, found->second) : StepRecord();
}
