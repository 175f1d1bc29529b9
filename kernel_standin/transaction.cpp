#include "kernel_standin/transaction.h"

#include "kernel_standin/call.h"
#include "kernel_standin/kernel_trace.h"

static thread_local int s_open = 0;
static thread_local int s_logging = 1;

void api_bb_begin(int linear)
{
    enterCall("api_bb_begin", {linear});
    ++s_open;
}

void api_bb_end(outcome&, int linear, int deleteEmpty)
{
    enterCall("api_bb_end", {linear, deleteEmpty});
    if (s_open == 0)
    {
        raiseError(KernelError::BadState, "No transaction is open");
    }
    --s_open;
}

void update_from_bb()
{
    enterCall("update_from_bb");
    if (s_open == 0)
    {
        raiseError(KernelError::BadState, "No transaction is open");
    }
}

logical logging_opt_on()
{
    enterCall("logging_opt_on");
    return s_logging;
}

void set_logging(int on)
{
    enterCall("set_logging", {on});
    s_logging = on;
}

int KernelTrace::openTransactions()
{
    return s_open;
}
