#pragma once

namespace vrx::bridge
{
class TranslatorChannel;
}

struct CadModel;

/// Tells the host in a message how much product manufacturing information the file holds, if any.
void sendPmiSummary(const CadModel& model, vrx::bridge::TranslatorChannel& channel);
