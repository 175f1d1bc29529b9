#pragma once

class HostChannel;
struct CadModel;

/// Tells the host in a message how much product manufacturing information the file holds, if any.
void sendPmiSummary(const CadModel& model, HostChannel& channel);
