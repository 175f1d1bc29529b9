#include "kernel_standin/error.h"

#include "kernel_standin/call.h"

#include <utility>

namespace
{

class TextInfo final : public error_info
{
public:
    explicit TextInfo(std::string text)
        : m_text(std::move(text))
    {
    }

    const char* error_message() const override { return m_text.c_str(); }

private:
    std::string m_text;
};

thread_local ErrorInfoHold s_globalInfo;
thread_local int s_mark = 0;

} // namespace

error_info_base::~error_info_base() = default;
error_info::~error_info() = default;

void error_info_base::add()
{
    ++m_holds;
}

void error_info_base::remove()
{
    noteCall("error_info_base::remove");
    release();
}

void error_info_base::release()
{
    if (--m_holds == 0)
    {
        delete this;
    }
}

ErrorInfoHold::ErrorInfoHold(error_info_base* info)
    : m_info(info)
{
    if (m_info != nullptr)
    {
        m_info->add();
    }
}

ErrorInfoHold::ErrorInfoHold(const ErrorInfoHold& other)
    : ErrorInfoHold(other.m_info)
{
}

ErrorInfoHold& ErrorInfoHold::operator=(const ErrorInfoHold& other)
{
    ErrorInfoHold copy(other);
    std::swap(m_info, copy.m_info);
    return *this;
}

ErrorInfoHold::~ErrorInfoHold()
{
    if (m_info != nullptr)
    {
        m_info->release();
    }
}

outcome::outcome(int number, error_info* info)
    : m_number(number)
    , m_info(info)
    , m_hold(info)
{
}

acis_exception::acis_exception(int number, error_info_base* info)
    : m_number(number)
    , m_info(info)
{
}

acis_exception::acis_exception(const acis_exception& other) = default;
acis_exception& acis_exception::operator=(const acis_exception& other) = default;
acis_exception::~acis_exception() = default;

void exception_save::begin()
{
    enterCall("exception_save::begin");
    m_mark = s_mark;
    m_begun = true;
}

exception_save::~exception_save()
{
    noteCall("exception_save::~exception_save");
    if (m_begun)
    {
        s_mark = m_mark;
    }
}

problems_list_prop::problems_list_prop()
{
    enterCall("problems_list_prop::problems_list_prop");
}

void problems_list_prop::process_result(outcome&, problems_list_prop_type type, logical always)
{
    enterCall("problems_list_prop::process_result", {static_cast<int>(type), always});
}

void check_outcome(const outcome& result)
{
    enterCall("check_outcome");
    if (!result.ok())
    {
        throwError(result.error_number(), result.get_error_info());
    }
}

error_info* base_to_err_info(error_info_base*& info)
{
    enterCall("base_to_err_info");
    error_info* const taken = asErrorInfo(info);
    if (taken != info)
    {
        taken->add();
        info->remove();
        info = taken;
    }
    return taken;
}

void set_global_error_info(error_info_base* info)
{
    enterCall("set_global_error_info");
    s_globalInfo = ErrorInfoHold(info);
}

int& get_error_mark()
{
    enterCall("get_error_mark");
    return s_mark;
}

void ACISExceptionCheck(const char*)
{
    enterCall("ACISExceptionCheck");
    if (s_mark == 0)
    {
        raiseError(KernelError::BadState, "The call is not guarded");
    }
}

error_info* makeErrorInfo(const std::string& text)
{
    return new TextInfo(text);
}

error_info* asErrorInfo(error_info_base* info)
{
    auto* const known = dynamic_cast<error_info*>(info);
    return info == nullptr || known != nullptr ? known : makeErrorInfo(info->error_message());
}

outcome makeFailure(KernelError error, const std::string& text)
{
    return outcome(static_cast<int>(error), makeErrorInfo(text));
}

void throwError(int number, error_info_base* info)
{
    s_globalInfo = ErrorInfoHold(info);
    throw acis_exception(number, info);
}

void raiseError(KernelError error, const std::string& text)
{
    throw acis_exception(static_cast<int>(error), makeErrorInfo(text));
}
