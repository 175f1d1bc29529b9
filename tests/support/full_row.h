#pragma once

#include "vrx_api/json/json_object.h"

#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace test
{

/// A class with its full text: all of its keys, each with another value than in a fresh object. A row is read and
/// written back, read a second time into the same object, has each of its keys taken away and replaced by other kinds,
/// and, for an exchange object, is a seed of the fuzz target of the model.
struct FullRow
{
    using Keys = std::set<std::string>;

    std::string title;
    std::shared_ptr<vrx::IJsonObject> (*make)() = nullptr;
    std::string in;
    std::string out;
    /// What is logged about a value of another kind as a whole; empty for none.
    std::string ofOtherKind;
    std::vector<std::string> log;
    Keys governing;
    Keys constant;
    Keys loud;
    Keys appending;
    Keys keeping;
    Keys nested;
    bool strict = false;

    /// What the class writes when it is not the text that it reads.
    FullRow writes(std::string text) &&
    {
        out = std::move(text);
        return std::move(*this);
    }

    /// The class says nothing about a value of another kind.
    FullRow silent() && { return std::move(*this).says({}); }

    /// The class has a text of its own about a value of another kind.
    FullRow says(std::string text) &&
    {
        ofOtherKind = std::move(text);
        return std::move(*this);
    }

    /// The class may refuse a text with `std::invalid_argument`, and logs nothing about another kind.
    FullRow throws() &&
    {
        strict = true;
        return std::move(*this).silent();
    }

    /// These errors and warnings are logged when the full text is read and written.
    FullRow logs(std::vector<std::string> lines) &&
    {
        log = std::move(lines);
        return std::move(*this);
    }

    /// These keys decide about others: when one of them is changed nothing is expected of the others.
    FullRow governedBy(Keys keys) &&
    {
        governing = std::move(keys);
        return std::move(*this);
    }

    /// These keys are written as in a fresh object: the class decides on their values, or does not read them.
    FullRow fixes(Keys keys) &&
    {
        constant = std::move(keys);
        return std::move(*this);
    }

    /// These keys have lines of their own about wrong values, which other tests look at.
    FullRow loudAbout(Keys keys) &&
    {
        loud = std::move(keys);
        return std::move(*this);
    }

    /// These arrays are appended to by a second read though they hold no objects and no texts: "vertices", or
    /// "textures/diffuse" for a member of a nested object.
    FullRow appends(Keys paths) &&
    {
        appending = std::move(paths);
        return std::move(*this);
    }

    /// These arrays of objects or texts are as long after a second read as they were; "" is the object itself.
    FullRow keeps(Keys keys) &&
    {
        keeping = std::move(keys);
        return std::move(*this);
    }

    /// These arrays are objects of a class of their own behind a pointer: a value of another kind is logged and leaves
    /// an empty one, and a second read replaces it.
    FullRow nests(Keys keys) &&
    {
        nested = std::move(keys);
        return std::move(*this);
    }

    friend std::ostream& operator<<(std::ostream& stream, const FullRow& row) { return stream << row.title; }
};

/// The title begins with the name by which the class's message about another kind calls it; more words follow after a
/// blank where a class has several rows.
template <class T>
FullRow fullRow(const std::string& title, const std::string& text)
{
    FullRow row;
    row.title = title;
    row.make = [] { return std::shared_ptr<vrx::IJsonObject>(std::make_shared<T>()); };
    row.in = text;
    row.out = text;
    row.ofOtherKind = title.substr(0, title.find(' ')) + " object should have a JSON object type.";
    return row;
}

} // namespace test
