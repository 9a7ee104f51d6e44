/// The tuning document of one package: read first, then computed, alone or together with those of others.
#ifndef TUNING_READING_H
#define TUNING_READING_H

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "FaultReport.h"
#include "OXMIDicAttribute.h"
#include "OXMIDicClass.h"
#include "OXMIDicMgr.h"
#include "OXMIDicPackage.h"
#include "ZELDbBinary.h"
#include "ZELString.h"
#include "ZELVBTXMLNode.h"
#include "ZanDicRef.h"
#include "ZanDicTuning.h"

struct LoadRun;

/// Faults are warnings: the package stays loaded. They fail this tuning all the same, and an observer is
/// asked whether to go on; nothing is computed after one. Holds a reference to each block that it read.
class TuningReading final : private ZanDicBlockFaultListener {
public:
    /// \param run the load that the document belongs to, which outlives this; null when it is read by itself.
    TuningReading(OXMIDicMgr& manager, const ZELString& packageName, const char* dirNames,
                  OXMIDicPackage& package, LoadRun* run = nullptr);
    ~TuningReading();
    TuningReading(const TuningReading&) = delete;
    TuningReading& operator=(const TuningReading&) = delete;

    /// Turns the document into blocks. \returns S_OK; S_FALSE when there is no document; E_FAIL.
    HRESULT Read();

    /// Computes the blocks of all tunings that were read without a fault, each pass for all of them.
    static void Compute(std::span<TuningReading* const> tunings);

    /// How far it got: the result of Read, after Compute that of the computation.
    HRESULT Result() const { return _Result; }

    /// The document; empty when there is none.
    const std::string& File() const { return _Place.file; }

    /// What it holds; null when it is not well formed. Whoever takes it does so when all is over.
    std::unique_ptr<ZELVBTXMLDocument>& Tree() { return _Document; }

    /// Number of the first fault; 0 when none was told.
    int FirstFailure() const { return _Place.firstFailure; }

private:
    /// The class or extension whose blocks are being read.
    struct Owner {
        ZanDicRef<OXMIDicClass> face;
        ZELString name;
    };

    /// What a tag says of a block.
    struct BlockTag {
        ZELVBTXMLNode node;
        const Owner& owner;
        ZELVBTXMLAttribute uuid = {};
        ZELVBTXMLAttribute extents = {};  ///< of an extension
        std::string_view name = {};
        std::vector<ZanDicRef<OXMIDicAttribute>> attributes = {};
    };

    /// How an attribute got into a block.
    enum class AddResult {
        Added,
        AddedForeign,  ///< at fault, since it belongs to another class
        Refused,       ///< at fault
    };

    /// Where a block or class is described, and its name as faults give it.
    struct TagPlace {
        std::uint32_t node;
        std::string element;
    };

    static std::string ElementName(const BlockTag& tag);
    static TagPlace PlaceOf(const BlockTag& tag);

    bool parse_Document();
    HRESULT check_Package(const ZELVBTXMLNode& node);
    HRESULT read_Child(const ZELVBTXMLNode& node);
    HRESULT find_Owner(const ZELVBTXMLNode& node, Owner& owner);
    HRESULT read_Blocks(const ZELVBTXMLNode& node, const Owner& owner);
    HRESULT read_Block(const ZELVBTXMLNode& node, const Owner& owner);
    HRESULT read_Attributes(BlockTag& tag);
    HRESULT make_Block(const BlockTag& tag);
    HRESULT get_Block(const BlockTag& tag, const ZELVBTXMLAttribute& uuidText,
                      ZanDicRef<OXMIDicAttributeBlock>& block);
    HRESULT set_Father(const BlockTag& tag, OXMIDicAttributeBlock& block);
    AddResult add_Attribute(const BlockTag& tag, OXMIDicAttribute& attribute, OXMIDicAttributeBlock& block);

    void OnBlockFault(const ZanDicBlockFault& blockFault) override;

    /// A fault that writes one line.
    Fault fault_Of(ZanDicDiagnosticCode code, const ZELVBTXMLNode& node, std::string_view line) const;
    /// Without the attribute: the line ends with the package's name, or with that of the block's class.
    HRESULT report_Missing(const ZELVBTXMLNode& node, std::string_view attributeName, std::string_view text);
    HRESULT report_Missing(const BlockTag& tag, std::string_view attributeName, std::string_view text);
    HRESULT report_Block(const BlockTag& tag, std::string_view line, std::string reason);
    /// What the package left out after a fault is no fault of its tuning. \returns the number of that fault,
    /// or 0.
    int cause_OfLeftOut(const ZELDbBinary& uuid) const;
    bool goes_On(HRESULT rc, HRESULT& result) const { return _Faults.GoesOn(rc, result); }

    struct Hash {
        std::size_t operator()(const ZELDbBinary& uuid) const { return uuid.ComputeHashKey(); }
    };

    OXMIDicMgr& _Manager;
    ZELString _Name;
    const char* _DirNames;
    OXMIDicPackage& _Package;
    const LoadRun* _Run;
    FaultReport _Faults;  ///< of its own: what happens here does not stop the load
    FaultDocument _Place;
    std::unique_ptr<ZELVBTXMLDocument> _Document;
    ZELListPtrIUnknown _BLOCKS;                               ///< one reference each
    std::unordered_map<ZELDbBinary, TagPlace, Hash> _PLACES;  ///< of blocks and classes, by UUID
    HRESULT _Result = S_FALSE;
};

#endif
