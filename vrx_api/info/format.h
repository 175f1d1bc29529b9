#pragma once

#include "vrx_api/json/json_object.h"

#include <vector>

namespace vrx
{

/// A file format that a translator reads or writes, with what a file dialog shows for it. The plain extensions are for
/// information; the filter extensions, one entry a dialog line, decide. An entry is a list of extensions without star
/// and dot, separated by ";". Reading throws `std::invalid_argument` when the value is no object, and adds to the
/// lists.
class VRX_API Format : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& description() const { return m_description; }
    Format& setDescription(const wstring& description);

    const std::vector<wstring>& extensions() const { return m_extensions; }
    Format& setExtensions(const std::vector<wstring>& extensions);
    Format& addExtension(const wstring& extension);

    Format& addFilterExtensions(const wstring& extensions);

    /// One text for each filter entry: the description, "|", and the entry.
    std::vector<wstring> getFilters() const;

    /// True when the path ends in a dot and one of the filter extensions, in either case. In an extension "*" stands
    /// for any text, and all else but "." has its meaning as an ECMAScript regular expression: throws
    /// `std::regex_error` for an extension that is none.
    bool is(const wstring& path) const;

private:
    friend struct Described<Format>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_description;
    std::vector<wstring> m_extensions;
    std::vector<wstring> m_filterExtensions;
};

} // namespace vrx
