#pragma once

#include "kernel_standin/error.h"

#include <initializer_list>
#include <new>
#include <optional>
#include <string>

enum class KernelError : int
{
    NoMemory = 1,
    NullArgument = 2,
    BadPart = 3,
    BadState = 4,
    BadData = 5,
};

/// New information that holds this text.
error_info* makeErrorInfo(const std::string& text);

/// The information as an outcome takes it: itself, or new information that holds its text. Holds are left as they are.
error_info* asErrorInfo(error_info_base* info);

outcome makeFailure(KernelError error, const std::string& text);

[[noreturn]] void raiseError(KernelError error, const std::string& text);

/// Makes an error the global one and throws it.
[[noreturn]] void throwError(int number, error_info_base* info);

/// Notes a call of an operation that can't fail.
void noteCall(const char* operation);

/// Notes a call with its numbers; the call throws if a test wants it to.
void enterCall(const char* operation, std::initializer_list<int> arguments = {});

/// The same for an operation that returns an outcome: the error that a test wants it to return.
std::optional<outcome> enterApiCall(const char* operation);

/// Runs an operation of the programming interface: what it throws is its outcome.
template <class Operation>
outcome apiCall(const char* name, Operation operation)
{
    if (const std::optional<outcome> failure = enterApiCall(name))
    {
        return *failure;
    }
    try
    {
        operation();
        return outcome(0);
    }
    catch (const acis_exception& exception)
    {
        return outcome(exception.get_error_number(), asErrorInfo(exception.get_error_info()));
    }
    catch (const std::bad_alloc&)
    {
        return makeFailure(KernelError::NoMemory, "Out of memory");
    }
}
