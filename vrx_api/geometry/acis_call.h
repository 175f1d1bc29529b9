#pragma once

#include "vrx_api/geometry/kernel.h"

namespace vrx
{

/// Information about an error that the kernel threw, held until it is given up with the kernel's `remove`.
class ThrownErrorInfo
{
public:
    ThrownErrorInfo() = default;
    ThrownErrorInfo(const ThrownErrorInfo&) = delete;
    ThrownErrorInfo& operator=(const ThrownErrorInfo&) = delete;
    ~ThrownErrorInfo() { remove(); }

    void hold(error_info_base* info)
    {
        m_info = info;
        if (m_info != nullptr)
        {
            m_info->add();
        }
    }

    error_info_base*& get() { return m_info; }

    void remove()
    {
        if (m_info != nullptr)
        {
            m_info->remove();
            m_info = nullptr;
        }
    }

private:
    error_info_base* m_info = nullptr;
};

/// Runs an operation that returns an `outcome` in the sequence that the kernel requires of a caller: within a
/// transaction, with its exceptions turned into the outcome. Only a user's interrupt, which `sys_error` reports, and a
/// failure of the sequence itself pass out as `acis_exception`.
template <class Operation>
outcome callAcis(Operation operation)
{
    set_global_error_info(nullptr);
    outcome result(0, nullptr);
    problems_list_prop problems;
    ThrownErrorInfo thrownInfo;
    int thrownNumber = 0;

    const logical logging = logging_opt_on();
    api_bb_begin(1);
    {
        exception_save saved;
        saved.begin();
        get_error_mark() = 1;
        ACISExceptionCheck("API");
        try
        {
            result = operation();
            check_outcome(result);
            if (result.ok())
            {
                update_from_bb();
            }
        }
        catch (const acis_exception& exception)
        {
            thrownNumber = exception.get_error_number();
            thrownInfo.hold(exception.get_error_info());
            result = outcome(thrownNumber, base_to_err_info(thrownInfo.get()));
        }
        api_bb_end(result, 1, logging != 0 ? 0 : 1);
        set_logging(logging);
    }
    if (acis_interrupted() != 0)
    {
        sys_error(thrownNumber, thrownInfo.get());
    }
    thrownInfo.remove();
    problems.process_result(result, static_cast<problems_list_prop_type>(1), 0);
    return result;
}

/// The text of an outcome that is an error.
inline const char* errorText(const outcome& result)
{
    const error_info* const info = result.get_error_info();
    const char* const text = info == nullptr ? nullptr : info->error_message();
    return text == nullptr ? "" : text;
}

} // namespace vrx
