#include "body_report.h"

#include "printable.h"

#include <ostream>

void printBodies(std::ostream& stream, const ReceivedBodies& bodies, const vrx::ExcProductStructure& structure)
{
    stream << "bodies\n";
    for (const std::uint64_t id : bodies.blocks())
    {
        const auto block = structure.getBlockById(id);
        std::size_t number = 0; // within the block
        for (const ReceivedBodies::Body& body : bodies.of(id))
        {
            stream << "  " << (block ? printable(block->name()) : "a block that is not there") << ": block " << id
                   << " body " << ++number << " id " << body.id << ": " << figuresText(body.figures) << '\n';
        }
    }
}
