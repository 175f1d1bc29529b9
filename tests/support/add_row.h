#pragma once

#include "tests/support/helpers.h"
#include "tests/support/json_text.h"
#include "tests/support/log_capture.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace test
{

/// An operation that adds objects and refuses null pointers.
struct AddRow
{
    /// A fresh object with the operation. What is added is told by one flag an object, false for a null pointer.
    struct Target
    {
        std::function<void(const std::vector<bool>&)> add;
        std::function<std::string()> state;
    };

    std::string title;
    std::function<Target()> make;
    /// Null for a class that refuses without a word.
    const char* warning = nullptr;
    bool takesMany = false;
    bool replaces = false;

    friend std::ostream& operator<<(std::ostream& stream, const AddRow& row) { return stream << row.title; }
};

namespace detail
{

/// The class of a row: the one that was given, or else that of the operation.
template <class T, class C>
using TargetOf = std::conditional_t<std::is_void_v<T>, C, T>;

/// What an object writes, or the number of objects that a getter has for one that does not write them.
template <class T, class Getter>
std::string stateOf(const T& object, Getter getter)
{
    if constexpr (std::is_null_pointer_v<Getter>)
    {
        return written(object);
    }
    else
    {
        return std::to_string(std::invoke(getter, object).size());
    }
}

template <class E>
std::vector<std::shared_ptr<E>> objectsOf(const std::vector<bool>& flags)
{
    std::vector<std::shared_ptr<E>> objects;
    objects.reserve(flags.size());
    for (const bool there : flags)
    {
        objects.push_back(there ? std::make_shared<E>() : nullptr);
    }
    return objects;
}

template <class T, class E, class Operation, class Getter>
AddRow oneRow(const char* title, Operation operation, const char* warning, Getter getter)
{
    const auto make = [=] {
        const auto object = std::make_shared<T>();
        return AddRow::Target{[=](const std::vector<bool>& flags) {
                                  for (const auto& added : objectsOf<E>(flags))
                                  {
                                      std::invoke(operation, *object, added);
                                  }
                              },
                              [=] { return stateOf(*object, getter); }};
    };
    return {title, make, warning};
}

template <class T, class E, class Operation, class Getter>
AddRow manyRow(const char* title, Operation operation, const char* warning, Getter getter, bool replaces)
{
    const auto make = [=] {
        const auto object = std::make_shared<T>();
        return AddRow::Target{
            [=](const std::vector<bool>& flags) { std::invoke(operation, *object, objectsOf<E>(flags)); },
            [=] { return stateOf(*object, getter); }};
    };
    return {title, make, warning, true, replaces};
}

} // namespace detail

// The rows below take the operation, the text of the warning (null for a class that refuses without a word), and a
// getter of what was added if the class does not write it. The class is that of the operation if none is given: give
// one to an operation of an abstract base.

/// An operation that appends one object.
template <class T = void, class R, class C, class E, class Getter = std::nullptr_t>
AddRow addRow(const char* title, R (C::*operation)(const std::shared_ptr<E>&), const char* warning,
              Getter getter = nullptr)
{
    return detail::oneRow<detail::TargetOf<T, C>, E>(title, operation, warning, getter);
}

template <class T = void, class R, class C, class E, class Getter = std::nullptr_t>
AddRow addRow(const char* title, R (C::*operation)(std::shared_ptr<E>), const char* warning, Getter getter = nullptr)
{
    return detail::oneRow<detail::TargetOf<T, C>, E>(title, operation, warning, getter);
}

/// An operation that takes more than the one object, as a function of a `T&` and a `const std::shared_ptr<E>&`.
template <class T, class E, class Operation, class Getter = std::nullptr_t>
AddRow addRow(const char* title, Operation operation, const char* warning, Getter getter = nullptr)
{
    return detail::oneRow<T, E>(title, operation, warning, getter);
}

/// An operation that appends the objects of a vector.
template <class T = void, class R, class C, class E, class Getter = std::nullptr_t>
AddRow addAllRow(const char* title, R (C::*operation)(const std::vector<std::shared_ptr<E>>&), const char* warning,
                 Getter getter = nullptr)
{
    return detail::manyRow<detail::TargetOf<T, C>, E>(title, operation, warning, getter, false);
}

template <class T, class E, class Operation, class Getter = std::nullptr_t>
AddRow addAllRow(const char* title, Operation operation, const char* warning, Getter getter = nullptr)
{
    return detail::manyRow<T, E>(title, operation, warning, getter, false);
}

/// An operation that replaces what is there by the objects of a vector.
template <class T = void, class R, class C, class E, class Getter = std::nullptr_t>
AddRow setAllRow(const char* title, R (C::*operation)(const std::vector<std::shared_ptr<E>>&), const char* warning,
                 Getter getter = nullptr)
{
    return detail::manyRow<detail::TargetOf<T, C>, E>(title, operation, warning, getter, true);
}

template <class T, class E, class Operation, class Getter = std::nullptr_t>
AddRow setAllRow(const char* title, Operation operation, const char* warning, Getter getter = nullptr)
{
    return detail::manyRow<T, E>(title, operation, warning, getter, true);
}

/// One test a row: instantiate it in the test file of the classes, with a table of rows.
class AddRows : public testing::TestWithParam<AddRow>
{
public:
    static std::string nameOf(const testing::TestParamInfo<AddRow>& info) { return testName(info.param.title); }

    static void check(const AddRow& row)
    {
        const AddRow::Target target = row.make();
        const std::string empty = target.state();
        EXPECT_EQ(complaintsOf([&] { target.add({false}); }), warnings(row, 1));
        EXPECT_EQ(target.state(), empty);

        EXPECT_EQ(complaintsOf([&] { target.add({true}); }), warnings(row, 0));
        const std::string one = target.state();
        EXPECT_NE(one, empty);

        target.add({true});
        const std::string next = target.state();
        EXPECT_EQ(next == one, row.replaces);
        if (row.takesMany)
        {
            checkVector(row, one);
        }
    }

private:
    // Nulls of a vector are passed over one by one, also where it replaces what was there.
    static void checkVector(const AddRow& row, const std::string& one)
    {
        const AddRow::Target target = row.make();
        if (row.replaces)
        {
            target.add({true, true});
        }
        EXPECT_EQ(complaintsOf([&] { target.add({false, true, false}); }), warnings(row, 2));
        EXPECT_EQ(target.state(), one);
    }

    template <class Action>
    static std::vector<std::string> complaintsOf(Action action)
    {
        const LogCapture log;
        action();
        return log.complaints();
    }

    static std::vector<std::string> warnings(const AddRow& row, std::size_t count)
    {
        return std::vector<std::string>(row.warning == nullptr ? 0 : count,
                                        row.warning == nullptr ? "" : std::string("[WARNING] ") + row.warning);
    }
};

} // namespace test
