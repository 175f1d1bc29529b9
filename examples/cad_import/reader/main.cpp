// A host that only reads: cad_reader FILE TRANSLATOR [ARGUMENT...]
//
// Has the translator import the file, and prints the product tree as cad_host does it, without what only Open CASCADE
// measures; before it a line for each shared buffer, in the order in which they came: the object, the size in bytes and
// the CRC-32 of the content.

#include "bridge/bridge.h"
#include "common/pmi_conventions.h"
#include "host/component_data.h"
#include "host/pmi/pmi_json.h"
#include "host/pmi/received_pmi.h"
#include "host/received_bodies.h"
#include "host/tree_output.h"
#include "mp/narrow.h"
#include "mp/shared_buffer.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <zlib.h>

#include <cstdlib>
#include <exception>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

namespace
{

class Reader : public vrx::bridge::Listener
{
public:
    void onHead(const vrx::MessageHead& head) override
    {
        mp::SharedBuffer<char> buffer;
        if (!head.bufferName.empty() && buffer.openExisting(head.bufferName))
        {
            const mp::SharedCopy content = buffer.copy();
            const auto* const bytes = reinterpret_cast<const Bytef*>(content.data());
            const uLong checksum = crc32_z(crc32_z(0, nullptr, 0), bytes, content.size());
            std::cout << mp::toNarrow(head.objectName) << ' ' << content.size() << ' ' << std::hex << std::setw(8)
                      << std::setfill('0') << checksum << std::dec << '\n';
        }
    }

    void onMessage(const mp::wstring& text) override { std::cerr << mp::toNarrow(text) << '\n'; }

    void onObject(const std::shared_ptr<vrx::IExchangeObject>& object) override
    {
        if (auto structure = std::dynamic_pointer_cast<vrx::ExcProductStructure>(object))
        {
            m_structure = std::move(structure);
        }
        else if (const auto bodies = std::dynamic_pointer_cast<vrx::ExcBlockGeometry>(object))
        {
            m_bodies.add(*bodies);
        }
        else if (const auto block = std::dynamic_pointer_cast<vrx::ExcBlockMechanicalData>(object))
        {
            m_pmi.add(*block);
            m_mechanical.push_back(block);
        }
        else if (const auto root = std::dynamic_pointer_cast<vrx::ExcRootMechanicalData>(object))
        {
            m_pmi.add(*root);
        }
    }

    void print()
    {
        if (m_structure)
        {
            TreeExtras extras{false, {}, MechanicalModel(*m_structure, m_mechanical, m_bodies)};
            extras.pmi = pmiJson(m_pmi, m_bodies);
            printJson(std::cout, *m_structure, extras);
        }
    }

private:
    std::shared_ptr<vrx::ExcProductStructure> m_structure;
    ReceivedBodies m_bodies;
    ReceivedPmi m_pmi;
    SentMechanicalData m_mechanical;
};

int read(const std::string& file, const std::vector<std::string>& translator)
{
    pmi_conventions::receiveMechanicalData();
    vrx::bridge::HostSession session(translator);
    const vrx::bridge::CancelOnInterrupt interrupts(session);
    const auto options = vrx::Command::newImportOptions();
    options->setFile(mp::toWide(file));
    Reader reader;
    const vrx::Result result = session.importFile(options, reader);
    session.finish();
    std::cerr << mp::toNarrow(result.message()) << (result.message().empty() ? "" : "\n");
    reader.print();
    return result.code() == vrx::Result::ECode::Error ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
    {
        std::cerr << "usage: cad_reader FILE TRANSLATOR [ARGUMENT...]\n";
        return 2;
    }
    try
    {
        return read(argv[1], {argv + 2, argv + argc});
    }
    catch (const std::exception& failure)
    {
        std::cerr << "cad_reader: " << failure.what() << '\n';
        return EXIT_FAILURE;
    }
}
