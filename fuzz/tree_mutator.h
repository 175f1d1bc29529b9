#pragma once

namespace fuzz
{

/// What the inputs of a target are that is mutated by tree_mutator.cpp: it defines its own.
struct InputForm
{
    bool isText;    ///< JSON in UTF-8, otherwise the binary form.
    bool isOfClass; ///< The name of a class and a line feed stand before the value.
};

extern const InputForm kInputForm;

} // namespace fuzz
