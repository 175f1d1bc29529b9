#include "kernel_standin/kernel_trace.h"

#include "kernel_standin/call.h"

#include <map>
#include <optional>
#include <stdexcept>

namespace
{

constexpr int kWantedError = 1000;

enum class FaultKind
{
    Fail,
    Raise,
    Interrupt,
};

struct Fault
{
    FaultKind kind = FaultKind::Fail;
    std::optional<std::string> text;

    error_info* info() const { return text ? makeErrorInfo(*text) : nullptr; }
};

thread_local KernelTrace* s_trace = nullptr;
thread_local bool s_interrupted = false;

std::optional<std::string> optionalText(const char* text)
{
    return text == nullptr ? std::nullopt : std::optional<std::string>(text);
}

std::string textOf(std::initializer_list<int> arguments)
{
    std::string text;
    for (const int argument : arguments)
    {
        text += (text.empty() ? "(" : ", ") + std::to_string(argument);
    }
    return text.empty() ? text : text + ')';
}

} // namespace

struct KernelTrace::State
{
    std::vector<std::string> calls;
    std::map<std::string, Fault> faults;
};

struct TraceAccess
{
    // The fault that a test wants of this call, if one does.
    static const Fault* note(const char* operation, std::initializer_list<int> arguments = {})
    {
        if (s_trace == nullptr)
        {
            return nullptr;
        }
        KernelTrace::State& state = *s_trace->m_state;
        state.calls.push_back(operation + textOf(arguments));
        const auto found = state.faults.find(operation);
        if (found == state.faults.end())
        {
            return nullptr;
        }
        s_interrupted = s_interrupted || found->second.kind == FaultKind::Interrupt;
        return &found->second;
    }
};

KernelTrace::KernelTrace()
    : m_state(std::make_unique<State>())
{
    if (s_trace != nullptr)
    {
        throw std::logic_error("A kernel trace is at work on this thread");
    }
    s_trace = this;
}

KernelTrace::~KernelTrace()
{
    s_trace = nullptr;
    s_interrupted = false;
}

std::vector<std::string> KernelTrace::calls() const
{
    return m_state->calls;
}

void KernelTrace::fail(const std::string& operation, const char* text)
{
    m_state->faults[operation] = {FaultKind::Fail, optionalText(text)};
}

void KernelTrace::raise(const std::string& operation, const char* text)
{
    m_state->faults[operation] = {FaultKind::Raise, optionalText(text)};
}

void KernelTrace::interrupt(const std::string& operation)
{
    m_state->faults[operation] = {FaultKind::Interrupt, std::nullopt};
}

void noteCall(const char* operation)
{
    TraceAccess::note(operation);
}

void enterCall(const char* operation, std::initializer_list<int> arguments)
{
    const Fault* const fault = TraceAccess::note(operation, arguments);
    if (fault != nullptr && fault->kind != FaultKind::Interrupt)
    {
        throw acis_exception(kWantedError, fault->info());
    }
}

std::optional<outcome> enterApiCall(const char* operation)
{
    const Fault* const fault = TraceAccess::note(operation);
    if (fault == nullptr || fault->kind == FaultKind::Interrupt)
    {
        return std::nullopt;
    }
    if (fault->kind == FaultKind::Raise)
    {
        throw acis_exception(kWantedError, fault->info());
    }
    return outcome(kWantedError, fault->info());
}

logical acis_interrupted()
{
    enterCall("acis_interrupted");
    return s_interrupted ? 1 : 0;
}

void sys_error(int number, error_info_base* info)
{
    enterCall("sys_error", {number});
    s_interrupted = false;
    throwError(number, info);
}
