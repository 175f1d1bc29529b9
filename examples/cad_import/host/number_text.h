#pragma once

#include "mp/wide.h"

/// A number as drawings write it: with this number of decimal places, or with as many as there are, and none that only
/// arithmetic has made, when it is 0.
mp::wstring numberText(double value, double places = 0);

/// With this many digits in all, without zeros at the end.
mp::wstring roundedText(double value, int digits);
