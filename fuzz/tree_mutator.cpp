#include "fuzz/tree_mutator.h"

#include "fuzz/support.h"
#include "fuzz/vocabulary.h"
#include "tests/support/form_changes.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace fuzz
{

using vrx::JsonAllocator;
using vrx::JsonDocument;
using vrx::JsonValue;
using vrx::wstring_view;

namespace
{

// An input taken apart.
struct Input
{
    Input(const std::uint8_t* data, std::size_t size)
        : value(data, data + size)
    {
        if (kInputForm.isOfClass)
        {
            const std::size_t end = value.find('\n') + 1; // 0 for no line feed
            head = value.substr(0, end);
            value.erase(0, end);
        }
    }

    std::string head;
    std::string value;
};

bool decode(const std::string& value, JsonDocument& tree)
{
    return kInputForm.isText ? parses(mp::toWide(value), tree) : decodes(value.data(), value.size(), tree);
}

// Nothing for a tree that has no text.
std::optional<std::string> encode(const JsonDocument& tree)
{
    if (!kInputForm.isText)
    {
        const vrx::Bytes form = encoded(tree);
        return std::string(form.data(), form.size());
    }
    const std::optional<mp::wstring> text = textOf(tree);
    return text ? std::optional(mp::toNarrow(*text)) : std::nullopt;
}

// A value in a tree: the child of this number, or the root.
struct Place
{
    JsonValue* parent;
    rapidjson::SizeType index;
    JsonValue* value;

    bool isMember() const { return parent != nullptr && parent->IsObject(); }
    JsonValue& name() const { return (parent->MemberBegin() + index)->name; }
    wstring_view key() const
    {
        return isMember() && name().IsString() ? wstring_view(name().GetString(), name().GetStringLength())
                                               : wstring_view();
    }
};

std::vector<Place> placesIn(JsonValue& root)
{
    std::vector<Place> places = {{nullptr, 0, &root}};
    for (std::size_t i = 0; i < places.size(); ++i)
    {
        JsonValue& value = *places[i].value;
        const rapidjson::SizeType count = value.IsObject() ? value.MemberCount() : value.IsArray() ? value.Size() : 0;
        for (rapidjson::SizeType child = 0; child < count; ++child)
        {
            places.push_back({&value, child, value.IsObject() ? &(value.MemberBegin() + child)->value : &value[child]});
        }
    }
    return places;
}

// The place of any child of the same parent.
Place anyBeside(const Place& place, Random& random)
{
    JsonValue& parent = *place.parent;
    if (place.isMember())
    {
        const auto index = static_cast<rapidjson::SizeType>(random() % parent.MemberCount());
        return {&parent, index, &(parent.MemberBegin() + index)->value};
    }
    const auto index = static_cast<rapidjson::SizeType>(random() % parent.Size());
    return {&parent, index, &parent[index]};
}

void swap(const Place& place, const Place& other)
{
    place.value->Swap(*other.value);
    if (place.isMember())
    {
        place.name().Swap(other.name());
    }
}

// Puts a value beside another one, as a member under the name; it may come before those that are there.
void insert(const Place& place, wstring_view name, JsonValue value, Random& random, JsonAllocator& allocator)
{
    JsonValue& parent = *place.parent;
    if (place.isMember())
    {
        parent.AddMember(textValue(name, allocator), value, allocator);
        const Place last{&parent, parent.MemberCount() - 1, &(parent.MemberEnd() - 1)->value};
        swap(last, anyBeside(last, random));
    }
    else
    {
        parent.PushBack(value, allocator);
        parent[parent.Size() - 1].Swap(*anyBeside(place, random).value);
    }
}

void remove(const Place& place)
{
    if (place.isMember())
    {
        place.parent->EraseMember(place.parent->MemberBegin() + place.index);
    }
    else
    {
        place.parent->Erase(place.parent->Begin() + place.index);
    }
}

// A value for a key, as the field of a class that has it, or any.
JsonValue valueFor(wstring_view key, Random& random, JsonAllocator& allocator)
{
    const Vocabulary& vocabulary = Vocabulary::instance();
    const Vocabulary::Fields* const fields = vocabulary.fieldsWith(key, random);
    if (fields == nullptr)
    {
        return anyValue(random, allocator);
    }
    const auto field = std::find_if(fields->begin(), fields->end(), [key](const auto& one) { return one.key == key; });
    return vocabulary.valueOf(field->shape, random, allocator);
}

// A key that may stand beside this one, or any.
wstring_view keyBeside(wstring_view key, Random& random)
{
    const Vocabulary::Fields* const fields = Vocabulary::instance().fieldsWith(key, random);
    return fields != nullptr && random() % 8 != 0 ? anyOf(*fields, random).key : Vocabulary::instance().anyWord(random);
}

// Changes the value itself.
void changeValue(const Place& place, const std::vector<Place>& places, Random& random, JsonAllocator& allocator)
{
    JsonValue& value = *place.value;
    switch (random() % 5)
    {
    case 0:
        value = anyValue(random, allocator);
        break;
    case 1:
        value = textValue(Vocabulary::instance().anyWord(random), allocator);
        break;
    case 2:
        value = copyOf(*anyOf(places, random).value, allocator);
        break;
    case 3:
    {
        JsonValue outer(rapidjson::kArrayType);
        outer.PushBack(copyOf(value, allocator), allocator);
        value.Swap(outer);
        break;
    }
    default:
        value = valueFor(place.key(), random, allocator);
        break;
    }
}

// Changes the value, or what stands beside it.
void change(JsonDocument& tree, Random& random)
{
    JsonAllocator& allocator = tree.GetAllocator();
    std::vector<Place> places = placesIn(tree);
    const Place place = anyOf(places, random);
    const auto kind = random() % 8;
    if (place.parent == nullptr || kind < 3)
    {
        changeValue(place, places, random, allocator);
        return;
    }
    const wstring_view beside = keyBeside(place.key(), random);
    switch (kind)
    {
    case 3:
        remove(place);
        break;
    case 4:
        insert(place, place.key(), copyOf(*place.value, allocator), random, allocator);
        break;
    case 5:
        insert(place, beside, valueFor(beside, random, allocator), random, allocator);
        break;
    case 6:
        place.isMember() ? void(place.name() = textValue(beside, allocator)) : remove(place);
        break;
    default:
        swap(place, anyBeside(place, random));
        break;
    }
}

// What only the binary form can say, such as a small number under the tag of a large one.
std::string withFormChanged(const std::string& form, Random& random)
{
    static const std::vector<test::FormChange> changes = test::formChanges();
    const char* at = form.data();
    test::FormValue root{vrx::BinaryTag::Array, {}, {test::takeValue(at)}};
    std::vector<test::FormPlace> places;
    addPlaces(root, places);
    const test::FormPlace place = anyOf(places, random);
    anyOf(changes, random)(*place.parent, place.index);
    std::string output;
    for (const test::FormValue& value : root.children)
    {
        append(output, value);
    }
    return output;
}

std::optional<std::string> changed(const std::string& value, Random& random)
{
    JsonDocument tree;
    if (!decode(value, tree))
    {
        return std::nullopt;
    }
    if (!kInputForm.isText && random() % 4 == 0)
    {
        return withFormChanged(value, random);
    }
    for (auto count = random() % 3; count < 3; ++count)
    {
        change(tree, random);
    }
    return encode(tree);
}

} // namespace

} // namespace fuzz

// Takes the place of the fuzzer's own mutation: mostly the value is decoded, changed as a tree and encoded again, so
// that it passes the decoder; now and then its bytes are changed, so that broken forms are tried, too.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed)
{
    fuzz::Random random(seed);
    if (random() % 4 != 0)
    {
        const fuzz::Input input(data, size);
        const std::optional<std::string> value = fuzz::changed(input.value, random);
        if (value && input.head.size() + value->size() <= maxSize)
        {
            std::copy(value->begin(), value->end(), std::copy(input.head.begin(), input.head.end(), data));
            return input.head.size() + value->size();
        }
    }
    return LLVMFuzzerMutate(data, size, maxSize);
}
