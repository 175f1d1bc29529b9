#pragma once

#include "pmi/received_pmi.h"
#include "received_bodies.h"

#include <string>

/// The PMI as a JSON object in UTF-8: the arrays "dimensions", "tolerances", "datums", "datum_targets", "notes" and
/// "views". The second line of a composite frame is a tolerance of its own behind the first one.
std::string pmiJson(const ReceivedPmi& pmi, const ReceivedBodies& bodies);
