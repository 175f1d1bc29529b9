#include "common/pmi_conventions.h"

#include "mp/narrow.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/vrx_api_exchange_object.h"

#include <string>
#include <vector>

namespace pmi_conventions
{

namespace
{

template <class Annotation>
void nameAll(const std::vector<std::shared_ptr<Annotation>>& annotations, const std::string& list)
{
    for (std::size_t i = 0; i < annotations.size(); ++i)
    {
        annotations[i]->setId(mp::toWide(list + std::to_string(i)));
    }
}

const vrx::JsonValue* member(const vrx::JsonValue& object, const mp::wchar* name)
{
    if (!object.IsObject())
    {
        return nullptr;
    }
    const auto found = object.FindMember(name);
    return found != object.MemberEnd() ? &found->value : nullptr;
}

const vrx::JsonValue* arrayOf(const vrx::JsonValue& object, const mp::wchar* name, std::size_t size)
{
    const vrx::JsonValue* const array = member(object, name);
    return array != nullptr && array->IsArray() && array->Size() == size ? array : nullptr;
}

// What the annotations' own classes do not take, their base does.
template <class Annotation>
void readBases(const std::vector<std::shared_ptr<Annotation>>& annotations, const vrx::JsonValue& view,
               const mp::wchar* list)
{
    const vrx::JsonValue* const array = arrayOf(view, list, annotations.size());
    for (std::size_t i = 0; array != nullptr && i < annotations.size(); ++i)
    {
        annotations[i]->vrx::ExcPMIAnnotation::readObject((*array)[static_cast<rapidjson::SizeType>(i)]);
    }
}

// The units of feature control frames, which are their names in memory.
void writeUnits(const vrx::ExcPMIAnnotationView& view, vrx::JsonValue& value, vrx::JsonAllocator& allocator)
{
    for (std::size_t i = 0; i < view.gdts().size(); ++i)
    {
        const mp::wstring& unit = view.gdts()[i]->name();
        vrx::JsonValue text(unit.c_str(), static_cast<rapidjson::SizeType>(unit.size()), allocator);
        value[WIDE("GDTs")][static_cast<rapidjson::SizeType>(i)].AddMember(WIDE("unit"), text, allocator);
    }
}

void readUnits(const std::vector<std::shared_ptr<vrx::ExcPMIGDT>>& gdts, const vrx::JsonValue& view)
{
    const vrx::JsonValue* const array = arrayOf(view, WIDE("GDTs"), gdts.size());
    for (std::size_t i = 0; array != nullptr && i < gdts.size(); ++i)
    {
        const vrx::JsonValue* const unit = member((*array)[static_cast<rapidjson::SizeType>(i)], WIDE("unit"));
        gdts[i]->setName(unit != nullptr && unit->IsString() ? mp::wstring(unit->GetString()) : mp::wstring());
    }
}

void readLinks(const vrx::ExcPMIAnnotationSet& set, const vrx::JsonValue& value)
{
    const vrx::JsonValue* const views = arrayOf(value, WIDE("annotation_views"), set.views().size());
    for (std::size_t i = 0; views != nullptr && i < set.views().size(); ++i)
    {
        const vrx::JsonValue& view = (*views)[static_cast<rapidjson::SizeType>(i)];
        readBases(set.views()[i]->datums(), view, WIDE("datum"));
        readBases(set.views()[i]->gdts(), view, WIDE("GDTs"));
        readUnits(set.views()[i]->gdts(), view);
    }
}

void complete(const std::shared_ptr<vrx::ExcPMIData>& pmi, const vrx::JsonValue& data)
{
    const std::size_t count = pmi ? pmi->annotationSets().size() : 0;
    const vrx::JsonValue* const sets = arrayOf(data, WIDE("pmi_data"), count);
    for (std::size_t i = 0; sets != nullptr && i < count; ++i)
    {
        readLinks(*pmi->annotationSets()[i], (*sets)[static_cast<rapidjson::SizeType>(i)]);
        nameByPlaces(*pmi->annotationSets()[i]);
    }
}

} // namespace

void nameByPlaces(const vrx::ExcPMIAnnotationSet& set)
{
    for (std::size_t i = 0; i < set.views().size(); ++i)
    {
        const vrx::ExcPMIAnnotationView& view = *set.views()[i];
        const std::string place = std::to_string(set.blockId()) + '/' + std::to_string(i) + '/';
        nameAll(view.notes(), place + "notes/");
        nameAll(view.datums(), place + "datum/");
        nameAll(view.datumTargets(), place + "datum_targets/");
        nameAll(view.gdts(), place + "GDTs/");
        nameAll(view.dimensions(), place + "dimensions/");
        nameAll(view.roughness(), place + "roughness/");
    }
}

void SentAnnotationSet::writeObject(vrx::JsonValue& value, vrx::JsonAllocator& allocator) const
{
    ExcPMIAnnotationSet::writeObject(value, allocator);
    if (views().empty())
    {
        return;
    }
    vrx::JsonValue& written = value[WIDE("views")];
    for (std::size_t i = 0; i < views().size(); ++i)
    {
        writeUnits(*views()[i], written[static_cast<rapidjson::SizeType>(i)], allocator);
    }
    vrx::JsonValue copy(written, allocator);
    value.AddMember(WIDE("annotation_views"), copy, allocator);
}

void ReceivedBlockMechanicalData::readObject(const vrx::JsonValue& value)
{
    ExcBlockMechanicalData::readObject(value);
    complete(pmiData(), value);
}

std::shared_ptr<vrx::IExchangeObject> ReceivedBlockMechanicalData::clone() const
{
    return std::make_shared<ReceivedBlockMechanicalData>();
}

void ReceivedRootMechanicalData::readObject(const vrx::JsonValue& value)
{
    ExcRootMechanicalData::readObject(value);
    complete(pmiData(), value);
}

std::shared_ptr<vrx::IExchangeObject> ReceivedRootMechanicalData::clone() const
{
    return std::make_shared<ReceivedRootMechanicalData>();
}

void receiveMechanicalData()
{
    // These stay in the registry until its end.
    static ReceivedBlockMechanicalData block;
    static ReceivedRootMechanicalData root;
    vrx::ExchangeObjectRegistry::instance().add(&block);
    vrx::ExchangeObjectRegistry::instance().add(&root);
}

} // namespace pmi_conventions
