#include "ZELVBTXMLNode.h"

#include <cstring>
#include <filesystem>
#include <new>
#include <optional>
#include <system_error>
#include <utility>

#include "ZELEnvironment.h"
#include "ZELFile.h"
#include "ZELMemory.h"
#include "ZELXMLBlock.h"
#include "ZELXMLEncoding.h"
#include "ZELXMLPositions.h"
#include "ZELXMLTokenizer.h"

namespace {

/// Offsets on the tape have 32 bits.
constexpr std::uint64_t kMaxLength = 0xFFFFFFFF;
constexpr const char* kTooLong = "the document has 4 GiB or more";
constexpr const char* kOutOfMemory = "out of memory";

static_assert(ZELFileContent::kPadding >= ZELXMLTokenizer::kPadding);
static_assert(ZELXMLTokenizer::kPadding >= ZELVBTXMLDocument::kReadablePadding);

std::unique_ptr<ZELVBTXMLDocument> Refuse(ZELVBTXMLError* error, std::string reason,
                                          ZELVBTXMLPosition place = {}) {
    if (error != nullptr) *error = {std::move(reason), place.line, place.column};
    return nullptr;
}

}  // namespace

/// The text of a document, wherever it came from, its tape and its places.
class ZELVBTXMLDocument::Storage {
public:
    explicit Storage(ZELFileContent content) : content_(std::move(content)) {
        text_ = content_.View();
        if (source_ = ZELXMLFindSource(text_); source_.encoding == ZELXMLEncoding::Utf8) return;
        text_ = Transcode(text_);
        content_ = {};
    }

    explicit Storage(std::string_view text) : source_(ZELXMLFindSource(text)) {
        text_ = source_.encoding == ZELXMLEncoding::Utf8 ? Copy(text) : Transcode(text);
    }

    /// Writes the tape. Call it once.
    bool Read(ZELVBTXMLError* error, ZELVBTXMLKeep keep) {
        if (text_.size() > kMaxLength) return Refuse(error, kTooLong) != nullptr;
        positions_.emplace(text_,
                           source_.encoding == ZELXMLEncoding::Utf8 ? ZELXMLTokenizer::MarkLength(text_) : 0);
        if (!isValid_) {
            constexpr auto kBroken = static_cast<std::size_t>(ZELXMLFault::BrokenUtf16);
            Refuse(error, std::string(kZELXMLReasons[kBroken]), positions_->PositionOf(text_.size()));
            return false;
        }
        ZELXMLTokenizer tokenizer(text_.data(), text_.size(), store_, source_, keep);
        if (!tokenizer.Run()) {
            Refuse(error, tokenizer.Reason(), positions_->PositionOf(tokenizer.FaultOffset()));
            return false;
        }
        static constexpr char kPadding[kReadablePadding] = {};
        store_.decodedText.Append(kPadding, kPadding + kReadablePadding);
        tape_ = {.text = text_.data(),
                 .decodedText = store_.decodedText.Data(),
                 .elements = store_.elements.Data(),
                 .attributes = store_.attributes.Data(),
                 .asides = store_.asides.Data(),
                 .pieces = store_.pieces.Data(),
                 .positions = &*positions_,
                 .elementCount = static_cast<std::uint32_t>(store_.elements.Size() - 1),
                 .attributeCount = static_cast<std::uint32_t>(store_.attributes.Size()),
                 .pieceCount = static_cast<std::uint32_t>(store_.pieces.Size())};
        return true;
    }

    const ZELVBTXMLTape& Tape() const { return tape_; }

private:
    std::string_view Copy(std::string_view text) {
        copy_.SetSize(text.size() + ZELXMLTokenizer::kPadding);
        if (!text.empty()) std::memcpy(copy_.Data(), text.data(), text.size());
        std::memset(copy_.Data() + text.size(), 0, ZELXMLTokenizer::kPadding);
        return {copy_.Data(), text.size()};
    }

    /// The text as UTF-8, as far as it is valid.
    std::string_view Transcode(std::string_view bytes) {
        isValid_ = ZELXMLToUtf8(source_.encoding, bytes.substr(source_.markLength), copy_);
        const std::size_t length = copy_.Size();
        copy_.SetSize(length + ZELXMLTokenizer::kPadding);
        std::memset(copy_.Data() + length, 0, ZELXMLTokenizer::kPadding);
        return {copy_.Data(), length};
    }

    ZELFileContent content_;  ///< the text of a file,
    ZELXMLBlock<char> copy_;  ///< or the copy of a text, from memory or from another encoding
    std::string_view text_;   ///< in one of these two
    ZELXMLSource source_;
    bool isValid_ = true;  ///< in its own encoding, unless that is UTF-8
    ZELXMLTapeStore store_;
    std::optional<ZELXMLPositions> positions_;
    ZELVBTXMLTape tape_;
};

ZELVBTXMLDocument::ZELVBTXMLDocument(std::unique_ptr<Storage> storage, std::string fileName)
    : storage_(std::move(storage)), tape_(&storage_->Tape()), fileName_(std::move(fileName)) {}

ZELVBTXMLDocument::~ZELVBTXMLDocument() = default;

std::unique_ptr<ZELVBTXMLDocument> ZELVBTXMLDocument::CreateFromFile(const char* path, ZELVBTXMLError* error,
                                                                     ZELVBTXMLKeep keep) try {
    if (path == nullptr) return Refuse(error, "no file name is given");
    // Looked at before the file is read, so that nothing is read in vain; what counts is the length then
    // read.
    std::error_code noSize;
    const std::uint64_t length = std::filesystem::file_size(ZELNativePath(path), noSize);
    if (!noSize && length > kMaxLength) return Refuse(error, kTooLong);
    ZELFileContent content;
    std::string reason;
    if (Failed(ZELReadFile(path, content, &reason))) return Refuse(error, std::move(reason));
    if (content.Size() > kMaxLength) return Refuse(error, kTooLong);
    auto storage = std::make_unique<Storage>(std::move(content));
    if (!storage->Read(error, keep)) return nullptr;
    return std::unique_ptr<ZELVBTXMLDocument>(new ZELVBTXMLDocument(std::move(storage), path));
} catch (const std::bad_alloc&) {
    ZELNoteShortage();
    return Refuse(error, kOutOfMemory);
}

std::unique_ptr<ZELVBTXMLDocument> ZELVBTXMLDocument::CreateFromMemory(std::string_view text,
                                                                       ZELVBTXMLError* error,
                                                                       ZELVBTXMLKeep keep) try {
    if (text.size() > kMaxLength) return Refuse(error, kTooLong);
    auto storage = std::make_unique<Storage>(text);
    if (!storage->Read(error, keep)) return nullptr;
    return std::unique_ptr<ZELVBTXMLDocument>(new ZELVBTXMLDocument(std::move(storage), {}));
} catch (const std::bad_alloc&) {
    ZELNoteShortage();
    return Refuse(error, kOutOfMemory);
}

ZELVBTXMLPosition ZELVBTXMLTape::PositionOf(std::uint32_t offset) const {
    return positions->PositionOf(offset);
}
