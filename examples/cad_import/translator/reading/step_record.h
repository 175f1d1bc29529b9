#pragma once

#include <Interface_Check.hxx>
#include <StepData_StepReaderData.hxx>
#include <TCollection_HAsciiString.hxx>

#include <vector>

/// A record of a STEP file, with its parameters counted from 1. What is missing or of the wrong kind reads as null,
/// zero or empty, and is told to the check.
class StepRecord
{
public:
    StepRecord(const StepData_StepReaderData& data, int number, const Handle(Interface_Check) & check)
        : m_data(data)
        , m_number(number)
        , m_check(check)
    {
    }

    /// Of an entity of several types the record with the parameters of one of them.
    StepRecord component(const char* type)
    {
        int number = m_number;
        while (number > 0 && m_data.RecordType(number) != type)
        {
            number = m_data.NextForComplex(number);
        }
        return {m_data, number, m_check};
    }

    Handle(TCollection_HAsciiString) text(int parameter)
    {
        Handle(TCollection_HAsciiString) text;
        if (m_number > 0)
        {
            m_data.ReadString(m_number, parameter, "text", m_check, text);
        }
        return text;
    }

    template <class Entity>
    Handle(Entity) entity(int parameter)
    {
        Handle(Entity) entity;
        if (m_number > 0)
        {
            m_data.ReadEntity(m_number, parameter, "entity", m_check, STANDARD_TYPE(Entity), entity);
        }
        return entity;
    }

    /// Without those that are of another kind or that the kernel does not know.
    template <class Entity>
    std::vector<Handle(Entity)> entities(int parameter)
    {
        std::vector<Handle(Entity)> entities;
        StepRecord list = sublist(parameter);
        list.m_check = new Interface_Check;
        for (int i = 1; i <= list.size(); ++i)
        {
            const Handle(Entity) entity = list.entity<Entity>(i);
            if (!entity.IsNull())
            {
                entities.push_back(entity);
            }
        }
        return entities;
    }

    std::vector<int> integers(int parameter)
    {
        StepRecord list = sublist(parameter);
        std::vector<int> integers(static_cast<std::size_t>(list.size()));
        for (int i = 1; i <= list.size(); ++i)
        {
            m_data.ReadInteger(list.m_number, i, "integer", m_check, integers[static_cast<std::size_t>(i - 1)]);
        }
        return integers;
    }

    StepRecord sublist(int parameter)
    {
        int list = 0;
        const bool found = m_number > 0 && m_data.ReadSubList(m_number, parameter, "list", m_check, list);
        return {m_data, found ? list : 0, m_check};
    }

    int size() const { return m_number > 0 ? m_data.NbParams(m_number) : 0; }

private:
    const StepData_StepReaderData& m_data;
    int m_number; // 0 for none
    Handle(Interface_Check) m_check;
};
