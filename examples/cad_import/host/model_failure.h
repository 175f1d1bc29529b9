#pragma once

#include <stdexcept>

/// What the translator sent is not the model that it should be.
class ModelFailure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};
