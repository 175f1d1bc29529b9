#include "vrx_api/json/shape.h"

#include "vrx_api/json/outline.h"

#include <algorithm>
#include <map>
#include <typeindex>
#include <unordered_map>
#include <utility>

namespace vrx
{

namespace
{

struct Entry
{
    std::string_view signature;
    Shape (*make)() = nullptr;
};

// It is filled while the library is loaded and only read afterwards.
std::unordered_map<std::type_index, Entry>& entries()
{
    static std::unordered_map<std::type_index, Entry> entries;
    return entries;
}

void removeAll(std::string& text, std::string_view part)
{
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at))
    {
        text.erase(at, part.size());
    }
}

// What the compilers spell: "... [with T = vrx::X; ...]", "... [T = vrx::X]", "...signatureWith<class vrx::X>(void)".
std::string nameIn(std::string_view signature)
{
    constexpr std::string_view kAssigned = "T = ";
    constexpr std::string_view kArgument = "signatureWith<";
    std::string_view name;
    const std::size_t assigned = signature.find(kAssigned);
    if (assigned != std::string_view::npos)
    {
        name = signature.substr(assigned + kAssigned.size());
        name = name.substr(0, name.find_first_of(";]"));
    }
    else
    {
        name = signature.substr(signature.find(kArgument) + kArgument.size());
        name = name.substr(0, name.rfind('>'));
    }
    std::string text(name);
    for (const std::string_view part : {"class ", "struct ", "enum ", "vrx::"})
    {
        removeAll(text, part);
    }
    return text;
}

const std::unordered_map<std::type_index, ClassShape>& classes()
{
    static const auto made = [] {
        std::unordered_map<std::type_index, ClassShape> all;
        for (const auto& [type, entry] : entries())
        {
            all.emplace(type, ClassShape(nameIn(entry.signature), entry.make()));
        }
        return all;
    }();
    return made;
}

} // namespace

bool enterShape(const std::type_info& type, std::string_view signature, Shape (*make)())
{
    entries()[type] = {signature, make};
    return true;
}

void FieldLister::addUnread(FieldLister&& base)
{
    for (FieldShape& field : base.m_shape.fields)
    {
        field.isRead = false;
        add(std::move(field));
    }
}

void FieldLister::add(FieldShape&& told)
{
    m_shape.kind = EShape::Record;
    const auto found = std::find_if(m_shape.fields.begin(), m_shape.fields.end(),
                                    [&told](const FieldShape& field) { return field.key == told.key; });
    if (found == m_shape.fields.end())
    {
        m_shape.fields.push_back(std::move(told));
        return;
    }
    found->isRead = found->isRead || told.isRead;
    found->isWritten = found->isWritten || told.isWritten;
}

ClassShape::ClassShape(std::string name, Shape shape)
    : m_name(std::move(name))
    , m_shape(std::move(shape))
{
}

const ClassShape* ClassShape::find(const std::type_info& type)
{
    const auto found = classes().find(type);
    return found == classes().end() ? nullptr : &found->second;
}

const ClassShape* ClassShape::find(const std::string& name)
{
    const auto found = std::find_if(classes().begin(), classes().end(),
                                    [&name](const auto& entry) { return entry.second.name() == name; });
    return found == classes().end() ? nullptr : &found->second;
}

std::vector<const ClassShape*> ClassShape::all()
{
    std::vector<const ClassShape*> all;
    for (const auto& [type, shape] : classes())
    {
        all.push_back(&shape);
    }
    std::sort(all.begin(), all.end(),
              [](const ClassShape* left, const ClassShape* right) { return left->name() < right->name(); });
    return all;
}

} // namespace vrx
