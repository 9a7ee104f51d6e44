/// What tests of attribute blocks share.
#ifndef BLOCK_FIXTURE_H
#define BLOCK_FIXTURE_H

#include <initializer_list>
#include <string>

#include "HexToBinary.h"
#include "ModelFixture.h"
#include "OXMIDicAttributeBlock.h"
#include "ZanDicRegistry.h"

class BlockFixture : public ModelFixture {
protected:
    Held<OXMIDicAttributeBlock> Block(OXMIDicPackage& package, const char* name = nullptr) {
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicAttributeBlock> block;
        EXPECT_EQ(package.CreateAttributeBlock(&uuid, block.Out()), S_OK);
        if (name != nullptr) {
            const ZELString blockName(name);
            EXPECT_EQ(block->SetName(&blockName), S_OK);
        }
        return block;
    }

    /// A block of a class, with attributes and perhaps a declared father.
    Held<OXMIDicAttributeBlock> BlockOf(OXMIDicPackage& package, OXMIDicClass& owner, const char* name,
                                        std::initializer_list<OXMIDicElement*> attributes = {},
                                        OXMIDicAttributeBlock* father = nullptr) {
        Held<OXMIDicAttributeBlock> block = Block(package, name);
        EXPECT_EQ(block->SetClass(&owner), S_OK);
        if (father != nullptr) {
            EXPECT_EQ(block->SetFather(father), S_OK);
        }
        for (OXMIDicElement* const attribute : attributes) EXPECT_EQ(Add(*block, *attribute), S_OK);
        return block;
    }

    static HRESULT Add(OXMIDicAttributeBlock& block, OXMIDicElement& attribute) {
        return block.AddAttribute(QueryFor<OXMIDicAttribute>(attribute).Get());
    }

    static HRESULT Compute(OXMIDicPackage& package, std::initializer_list<OXMIDicAttributeBlock*> blocks) {
        ZELListPtrIUnknown list;
        for (OXMIDicAttributeBlock* const block : blocks) list.Append(block);
        return package.ComputeAttributeBlocks(&list);
    }

    static std::string AttributesOf(OXMIDicAttributeBlock& block) {
        HeldList attributes;
        EXPECT_EQ(block.GetAttributes(&attributes), S_OK);
        return NamesOf(attributes);
    }

    static std::string BlocksOf(OXMIDicClass& owner) {
        HeldList blocks;
        EXPECT_EQ(owner.GetAttBlocks(&blocks), S_OK);
        return NamesOf(blocks);
    }

    static Held<OXMIDicAttributeBlock> FatherOf(OXMIDicAttributeBlock& block) {
        Held<OXMIDicAttributeBlock> father;
        block.GetFather(father.Out());
        return father;
    }

    static Held<OXMIDicAttributeBlock> RootOf(OXMIDicAttributeBlock& block) {
        Held<OXMIDicAttributeBlock> root;
        block.GetRoot(root.Out());
        return root;
    }

    static std::string NameOf(OXMIDicElementH& object) {
        ZELString name;
        object.GetName(&name);
        return std::string(name.View());
    }

    static std::string UuidOf(OXMIDicElementH& object) {
        ZELDbBinary uuid;
        object.GetUuid(&uuid);
        return UuidText(uuid);
    }
};

#endif
