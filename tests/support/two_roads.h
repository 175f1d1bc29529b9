#pragma once

#include "tests/support/log_capture.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/json_value.h"

#include <cstddef>
#include <exception>
#include <string>
#include <typeinfo>
#include <vector>

namespace test
{

/// One of the two ways between an object and its binary form, which must not differ in anything.
struct BinaryRoad
{
    void (*read)(vrx::IJsonObject& object, const char* form, std::size_t size);
    std::string (*write)(const vrx::IJsonObject& object);
};

inline void readByTree(vrx::IJsonObject& object, const char* form, std::size_t size)
{
    vrx::JsonDocument document;
    vrx::JsonBinaryIO::read(form, size, document, document.GetAllocator());
    object.readObject(document);
}

inline std::string writeByTree(const vrx::IJsonObject& object)
{
    vrx::JsonDocument document;
    object.writeObject(document, document.GetAllocator());
    std::vector<char> form;
    vrx::JsonBinaryIO::write(form, document);
    return {form.data(), form.size()};
}

inline void readDirectly(vrx::IJsonObject& object, const char* form, std::size_t size)
{
    vrx::JsonBinaryIO::read(form, size, object);
}

inline std::string writeDirectly(const vrx::IJsonObject& object)
{
    vrx::Bytes form;
    vrx::JsonBinaryIO::write(form, object);
    return {form.data(), form.size()};
}

/// By a tree, which the object's virtual operations read and write.
inline constexpr BinaryRoad kTreeRoad{readByTree, writeByTree};

inline constexpr BinaryRoad kDirectRoad{readDirectly, writeDirectly};

/// The type and the text of the error that an operation throws; empty for none.
template <class Operation>
std::string failureOf(Operation operation)
{
    try
    {
        operation();
    }
    catch (const std::exception& error)
    {
        return std::string(typeid(error).name()) + ": " + error.what();
    }
    return {};
}

/// What an object writes, or the error.
inline std::string writtenBy(const BinaryRoad& road, const vrx::IJsonObject& object)
{
    std::string form;
    const std::string failure = failureOf([&] { form = road.write(object); });
    return failure.empty() ? form : failure;
}

/// All that is to be seen when an object reads a form, reads it once more and is written: the errors, what has become
/// of the object after each read, what is written, and the lines of the log.
inline std::vector<std::string> accountOf(const BinaryRoad& road, vrx::IJsonObject& object, const std::string& form)
{
    // Bytes that lie at the least of the addresses that are allowed, up to their very end.
    std::vector<char> memory(sizeof(mp::wchar) + form.size());
    form.copy(memory.data() + sizeof(mp::wchar), form.size());
    const LogCapture log;
    std::vector<std::string> account;
    for (int i = 0; i < 2; ++i)
    {
        account.push_back(failureOf([&] { road.read(object, memory.data() + sizeof(mp::wchar), form.size()); }));
        account.push_back(writtenBy(kTreeRoad, object));
    }
    account.push_back(writtenBy(road, object));
    const std::vector<std::string> lines = log.all();
    account.insert(account.end(), lines.begin(), lines.end());
    return account;
}

} // namespace test
