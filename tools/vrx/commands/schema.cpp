#include "schema/schema.h"

#include "classes/class_named.h"
#include "commands/commands.h"

#include <iostream>

namespace tool
{

static int schema(Arguments& arguments)
{
    const std::string name = arguments.hasOperand() ? arguments.takeOperand("a class") : "";
    arguments.end();
    if (name.empty())
    {
        std::cout << schema::ofMessages() << '\n';
        return kSuccess;
    }
    const vrx::ClassShape* const shape = classes::named(name);
    if (shape == nullptr)
    {
        throw UsageError("unknown class: " + name);
    }
    std::cout << schema::ofClass(*shape) << '\n';
    return kSuccess;
}

const Command kSchema = {"schema", "writes the JSON Schema of messages and objects",
                         R"(usage: vrx schema [CLASS]
Writes the JSON Schema (draft 2020-12) of all messages and objects, or that of one class with what it needs. CLASS is a
name such as ExcBlock, or that of an exchange object on the wire, such as exc_block_geometry.

A schema cannot tell 1 from 1.0, and a reader does: vrx check finds that.)",
                         schema};

} // namespace tool
