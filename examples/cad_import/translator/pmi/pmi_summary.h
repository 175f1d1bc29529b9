#pragma once

class HostChannel;
struct StepModel;

/// Tells the host in a message how much product manufacturing information the file holds, if any.
void sendPmiSummary(const StepModel& model, HostChannel& channel);
