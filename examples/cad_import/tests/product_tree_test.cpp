#include "host/product_tree.h"
#include "host/tree_output.h"

#include <gmock/gmock.h>

#include <cmath>
#include <memory>
#include <sstream>
#include <string>

namespace
{

using State = ProductTreeNode::EState;

std::shared_ptr<vrx::ExcBlockReference> reference(std::uint64_t block, const mp::wstring& name = {})
{
    auto reference = std::make_shared<vrx::ExcBlockReference>();
    reference->setBlockId(block);
    reference->setName(name);
    return reference;
}

std::shared_ptr<vrx::ExcBlock> addBlock(vrx::ExcProductStructure& structure, std::uint64_t id)
{
    auto block = std::make_shared<vrx::ExcBlock>();
    block->setId(id);
    structure.addBlock(block);
    return block;
}

TEST(ProductTree, StopsWhereABlockHoldsItself)
{
    vrx::ExcProductStructure structure;
    addBlock(structure, 1)->addBlockReference(reference(2));
    addBlock(structure, 2)->addBlockReference(reference(1));
    structure.addRootBlockReference(reference(1));
    const std::vector<ProductTreeNode> tree = productTree(structure, ESiblings::Collapsed);
    ASSERT_EQ(tree.size(), 3U);
    EXPECT_EQ(tree[1].state, State::Normal);
    EXPECT_EQ(tree[2].state, State::Recursion);
}

TEST(ProductTree, ShowsReferencesToNoBlock)
{
    vrx::ExcProductStructure structure;
    structure.addRootBlockReference(reference(7, WIDE("lost")));
    const std::vector<ProductTreeNode> tree = productTree(structure, ESiblings::Collapsed);
    ASSERT_EQ(tree.size(), 1U);
    EXPECT_EQ(tree[0].state, State::MissingBlock);

    std::ostringstream text;
    printText(text, structure, {true, {}});
    EXPECT_THAT(text.str(), testing::HasSubstr("lost [no block with id 7]"));
    printJson(text, structure);
    EXPECT_THAT(text.str(), testing::HasSubstr("\"name\": \"lost\""));
}

TEST(ProductTree, CollapsesOnlyWhatLooksAlike)
{
    vrx::ExcProductStructure structure;
    addBlock(structure, 1)->setPart(true);
    const auto red = reference(1);
    red->setColor({255, 0, 0});
    const auto hidden = reference(1);
    hidden->setHidden(true);
    for (const auto& one : {reference(1), red, reference(1), hidden, reference(1)})
    {
        structure.addRootBlockReference(one);
    }
    const std::vector<ProductTreeNode> tree = productTree(structure, ESiblings::Collapsed);
    ASSERT_EQ(tree.size(), 3U);
    EXPECT_EQ(tree[0].references.size(), 3U);
    EXPECT_EQ(productTree(structure, ESiblings::Separate).size(), 5U);
}

TEST(ProductTree, GoesDownAHundredThousandLevels)
{
    const std::uint64_t levels = 100000;
    vrx::ExcProductStructure structure;
    structure.addRootBlockReference(reference(1));
    for (std::uint64_t id = 1; id <= levels; ++id)
    {
        addBlock(structure, id)->addBlockReference(reference(id + 1));
    }
    EXPECT_EQ(productTree(structure, ESiblings::Collapsed).size(), levels + 1);
}

TEST(ProductTree, RefusesATreeThatDoublesForever)
{
    vrx::ExcProductStructure structure;
    structure.addRootBlockReference(reference(1));
    for (std::uint64_t id = 1; id <= 60; ++id)
    {
        const auto block = addBlock(structure, id);
        block->addBlockReference(reference(id + 1));
        block->addBlockReference(reference(id + 1));
    }
    EXPECT_THROW(productTree(structure, ESiblings::Separate), std::length_error);
    EXPECT_EQ(productTree(structure, ESiblings::Collapsed).size(), 61U);
}

TEST(ProductTree, KeepsControlCharactersOffTheTerminal)
{
    vrx::ExcProductStructure structure;
    structure.addRootBlockReference(reference(1, WIDE("a\x1B[31mb\nc\u009B2J")));
    std::ostringstream text;
    printText(text, structure);
    EXPECT_THAT(text.str(), testing::HasSubstr("a [31mb c 2J [no block"));
}

TEST(ProductTree, HasNullInJsonForANumberThatIsNotFinite)
{
    vrx::ExcProductStructure structure;
    structure.addRootBlockReference(reference(1));
    vrx::ExcTransformation place;
    place.translation() = {std::nan(""), HUGE_VAL, 2};
    structure.rootBlockReferences()[0]->setTransformation(place);
    std::ostringstream text;
    printJson(text, structure);
    EXPECT_THAT(text.str(), testing::HasSubstr("[null, null, 2.0]"));
}

} // namespace
