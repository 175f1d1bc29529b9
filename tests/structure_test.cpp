#include "tests/support/add_row.h"
#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_exchange_structure.h"

using namespace vrx;
using test::addRow;
using test::row;

namespace
{

class StructureRows : public test::ModelRows
{
};

const char* const kEmptyBlock = R"({"id":0,"world_orientation":"unknown","is_part":false})";
const char* const kEmptyReference =
    R"({"guid":"","persistent_id":"","persistent_name":"","block_id":0,"name":"",)"
    R"("transformation":{"affine":[[1.0,0.0,0.0],[0.0,1.0,0.0],[0.0,0.0,1.0]],"translation":[0.0,0.0,0.0]},)"
    R"("color":null,"hidden":false,"suppressed":false})";
const char* const kEmptyStructure =
    R"({"product_name":"","product_configuration_name":"","units":"unknown","world_orientation":"unknown"})";
const char* const kNoBlock = "[ERROR] ExcBlock object should have a JSON object type.";

const test::ModelRow kRows[] = {
    row<ExcBlock>("BlockEmpty", "{}", kEmptyBlock),
    row<ExcBlock>("BlockKeepsTheFirstOfTwoMembers", R"({"id":1,"id":2,"ID":3})",
                  R"({"id":1,"world_orientation":"unknown","is_part":false})"),

    row<ExcBlockReference>("ReferenceEmptyIsWrittenWhole", "{}", kEmptyReference),
    row<ExcBlockReference>("ReferenceHandsOverAnyKind", R"({"transformation":1,"color":[],"misc_data":null})",
                           kEmptyReference),

    row<ExcProductStructure>("StructureEmpty", "{}", kEmptyStructure),
    row<ExcProductStructure>("StructureKeepsItsLengths", R"({"misc_data":[0],"blocks":[0,{"id":2}]})",
                             R"({"product_name":"","product_configuration_name":"",)"
                             R"("misc_data":[{"name":"","type":"unknown","value":""}],)"
                             R"("units":"unknown","world_orientation":"unknown",)"
                             R"("blocks":[{"id":0,"world_orientation":"unknown","is_part":false},)"
                             R"({"id":2,"world_orientation":"unknown","is_part":false}]})",
                             {kNoBlock}),
};

TEST_P(StructureRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Structure, StructureRows, testing::ValuesIn(kRows), StructureRows::nameOf);

const test::AddRow kAdds[] = {
    addRow("ExcBlock::addBlockReference", &ExcBlock::addBlockReference,
           "ExcBlock: attempt to add null Block Reference object."),
    addRow("ExcProductStructure::addBlock", &ExcProductStructure::addBlock,
           "ExcProductStructure: attempt to add null Block object."),
    addRow("ExcProductStructure::addRootBlockReference", &ExcProductStructure::addRootBlockReference,
           "ExcProductStructure: attempt to add null Root Block Reference object."),
};

class StructureAdds : public test::AddRows
{
};

TEST_P(StructureAdds, RefuseNulls)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Structure, StructureAdds, testing::ValuesIn(kAdds), StructureAdds::nameOf);

std::shared_ptr<ExcBlock> block(std::uint64_t id, const wstring& name)
{
    auto made = std::make_shared<ExcBlock>();
    made->setId(id);
    made->setName(name);
    return made;
}

std::vector<wstring> namesOf(const ExcProductStructure& structure)
{
    std::vector<wstring> names;
    for (const auto& one : structure.blocks())
    {
        names.push_back(one->name());
    }
    return names;
}

TEST(ProductStructure, MovesABlockThatIsAddedAgain)
{
    ExcProductStructure structure;
    const auto first = block(1, WIDE("first"));
    structure.addBlock(first);
    structure.addBlock(block(2, WIDE("second")));
    structure.addBlock(structure.blocks().front());
    EXPECT_EQ(namesOf(structure), (std::vector<wstring>{WIDE("second"), WIDE("first")}));
    EXPECT_EQ(structure.getBlockById(1), first);

    // The index has the id of the moment of addition.
    first->setId(5);
    EXPECT_EQ(structure.getBlockById(1), first);
    EXPECT_EQ(structure.getBlockById(5), nullptr);
}

TEST(ProductStructure, KeepsTwoBlocksOfOneIdAndFindsTheLast)
{
    ExcProductStructure structure;
    structure.addBlock(block(7, WIDE("old")));
    structure.addBlock(block(7, WIDE("new")));
    const auto back = test::readFrom<ExcProductStructure>(test::written(structure));
    for (const ExcProductStructure& one : {structure, back})
    {
        EXPECT_EQ(namesOf(one), (std::vector<wstring>{WIDE("old"), WIDE("new")}));
        EXPECT_EQ(one.getBlockById(7)->name(), WIDE("new"));
        EXPECT_EQ(one.getBlockById(8), nullptr);
    }
}

TEST(ProductStructure, AppendsWhatItReadsAndCopiesShareIt)
{
    const char* const text = R"({"product_name":"p","blocks":[{"id":1}],"root_block_references":[{"block_id":1}]})";
    auto structure = test::readFrom<ExcProductStructure>(text);
    const ExcProductStructure copy = structure;
    EXPECT_EQ(copy.getBlockById(1), structure.getBlockById(1));
    test::readText(structure, text);
    EXPECT_EQ(structure.blocks().size(), 2U);
    EXPECT_EQ(structure.rootBlockReferences().size(), 2U);
    EXPECT_EQ(structure.getBlockById(1), structure.blocks().back());
    EXPECT_EQ(copy.blocks().size(), 1U);
    EXPECT_EQ(test::written(*std::dynamic_pointer_cast<ExcProductStructure>(structure.clone())), kEmptyStructure);
}

} // namespace
