#pragma once

#include "kernel_standin/kernel_standin_export.h"

#include <memory>
#include <string>
#include <vector>

/// For tests: notes the calls that reach the kernel on this thread while it lives, and makes some of them fail.
/// One at a time.
class KERNEL_STANDIN KernelTrace
{
public:
    KernelTrace();
    KernelTrace(const KernelTrace&) = delete;
    KernelTrace& operator=(const KernelTrace&) = delete;
    ~KernelTrace();

    /// The operations in the order of the calls, with their numbers in brackets where they take some.
    std::vector<std::string> calls() const;

    /// From now on this operation fails, without information if the text is null: one that returns an outcome returns
    /// an error, any other throws. Destructors and an information's `remove`, which can't fail, just go on.
    void fail(const std::string& operation, const char* text);

    /// The same, but an operation that returns an outcome throws too.
    void raise(const std::string& operation, const char* text);

    /// The user interrupts when this operation is called, which does its work nevertheless.
    void interrupt(const std::string& operation);

    /// How many transactions are open on this thread.
    static int openTransactions();

private:
    friend struct TraceAccess;
    struct State;

    std::unique_ptr<State> m_state;
};
