// Prints what a translator measures of the bodies of a file before it sends them, on standard error:
// cad_translator_figures <file>

#include "bodies/block_bodies.h"
#include "bridge/translator_channel.h"
#include "import_progress.h"
#include "reading/cad_reader.h"
#include "reading/import_settings.h"
#include "structure/product_structure_builder.h"

#include <exception>
#include <iostream>

namespace
{

// What is sent while a file is read is for no one here.
class SilentChannel : public vrx::bridge::TranslatorChannel
{
public:
    using vrx::bridge::TranslatorChannel::send;
    void send(const std::shared_ptr<vrx::IExchangeObject>&) override {}
};

void printFigures(const std::string& path)
{
    SilentChannel channel;
    ImportSettings settings;
    settings.file = path;
    ImportProgress progress(channel);
    const CadModel model = readModel(settings, channel, progress);
    ProductStructureBuilder builder(model, settings);
    for (const std::shared_ptr<vrx::ExcBlock>& block : builder.build()->blocks())
    {
        for (const std::string& line : figuresOfBodies(*block, builder.shapeOf(*block)))
        {
            std::cerr << line << '\n';
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        return 2;
    }
    try
    {
        printFigures(argv[1]);
    }
    catch (const std::exception& failure)
    {
        std::cerr << "cad_translator_figures: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
