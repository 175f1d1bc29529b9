#include "bodies/solid_body.h"
#include "data/modelling.h"
#include "host/measured_body.h"
#include "host/model_failure.h"
#include "kernel_standin/kernel_standin.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <vector>

namespace
{

const int kTold = 4;

// Ends the process with kTold when the body can't be measured and signals of the user are still what they were.
[[noreturn]] void measureAndExit(ENTITY& body)
{
    std::signal(SIGINT, SIG_IGN);
    try
    {
        measuredBody(body, EBox::Without);
    }
    catch (const ModelFailure& failure)
    {
        std::cerr << failure.what() << '\n';
        std::raise(SIGINT);
        std::_Exit(kTold);
    }
    std::_Exit(0);
}

TEST(MeasuredBody, TellsOfACrashOfTheKernel)
{
    OwnedEntities bodies;
    auto* const body = new BODY;
    bodies.list().add(body);
    fillBody(*body, modelling::cylinder(gp_Ax1(), 2, 3));
    EXPECT_EXIT(measureAndExit(*body), testing::ExitedWithCode(0), "");

    // An orientation that there is not; it stands before two numbers of four bytes at the end.
    std::vector<char> brep = body->payload();
    brep.at(brep.size() - 9) = 127;
    body->setPayload(brep);
    EXPECT_EXIT(measureAndExit(*body), testing::ExitedWithCode(kTold), "can not be used: SIGSEGV");
}

} // namespace
