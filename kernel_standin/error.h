#pragma once

#include "kernel_standin/kernel_standin_export.h"

using logical = int;

/// Why an operation failed. Shared by counting: it ends with the last of those who hold it.
class KERNEL_STANDIN error_info_base
{
public:
    error_info_base(const error_info_base&) = delete;
    error_info_base& operator=(const error_info_base&) = delete;

    virtual const char* error_message() const = 0;

    /// Takes a hold, and gives one up.
    void add();
    void remove();

protected:
    error_info_base() = default;
    virtual ~error_info_base();

private:
    friend class ErrorInfoHold;
    void release();

    int m_holds = 0;
};

/// The information that an outcome carries.
class KERNEL_STANDIN error_info : public error_info_base
{
protected:
    ~error_info() override;
};

/// Holds information about an error for as long as it lives itself.
class KERNEL_STANDIN ErrorInfoHold
{
public:
    explicit ErrorInfoHold(error_info_base* info = nullptr);
    ErrorInfoHold(const ErrorInfoHold& other);
    ErrorInfoHold& operator=(const ErrorInfoHold& other);
    ~ErrorInfoHold();

    error_info_base* get() const { return m_info; }

private:
    error_info_base* m_info;
};

/// What an operation of the kernel returns: 0 when all went well, otherwise the number of an error and, it may be,
/// information about it.
class KERNEL_STANDIN outcome
{
public:
    explicit outcome(int number, error_info* info = nullptr);

    logical ok() const { return m_number == 0 ? 1 : 0; }
    int error_number() const { return m_number; }
    error_info* get_error_info() const { return m_info; }

private:
    int m_number;
    error_info* m_info;
    ErrorInfoHold m_hold;
};

/// What the kernel throws.
class KERNEL_STANDIN acis_exception
{
public:
    acis_exception(int number, error_info_base* info);
    acis_exception(const acis_exception& other);
    acis_exception& operator=(const acis_exception& other);
    virtual ~acis_exception();

    int get_error_number() const { return m_number; }
    error_info_base* get_error_info() const { return m_info.get(); }

private:
    int m_number;
    ErrorInfoHold m_info;
};

/// The state of error handling around a guarded call: `begin` notes it, the destructor brings it back.
class KERNEL_STANDIN exception_save
{
public:
    exception_save() = default;
    exception_save(const exception_save&) = delete;
    exception_save& operator=(const exception_save&) = delete;
    ~exception_save();

    void begin();

private:
    bool m_begun = false;
    int m_mark = 0;
};

enum problems_list_prop_type
{
    PROBLEMS_LIST_PROP_IGNORE = 0,
    PROBLEMS_LIST_PROP_ONLY = 1,
};

/// Gathers the problems of the calls within a call. The stand-in's operations report none beside their outcome.
class KERNEL_STANDIN problems_list_prop
{
public:
    problems_list_prop();
    problems_list_prop(const problems_list_prop&) = delete;
    problems_list_prop& operator=(const problems_list_prop&) = delete;

    void process_result(outcome& result, problems_list_prop_type type, logical always);
};

/// Ends a call with an error: it becomes the global one and is thrown as `acis_exception`.
[[noreturn]] KERNEL_STANDIN void sys_error(int number, error_info_base* info);

/// Does so when the outcome is an error.
KERNEL_STANDIN void check_outcome(const outcome& result);

/// The information as an outcome takes it. Information of another kind is replaced by its text, and the caller's hold
/// goes over to that.
KERNEL_STANDIN error_info* base_to_err_info(error_info_base*& info);

KERNEL_STANDIN void set_global_error_info(error_info_base* info);

/// Not 0 while a guarded call runs.
KERNEL_STANDIN int& get_error_mark();

/// Throws when the calling thread is in no state to enter the kernel.
KERNEL_STANDIN void ACISExceptionCheck(const char* where);

/// True from the user's interrupt until `sys_error` reports it.
KERNEL_STANDIN logical acis_interrupted();
