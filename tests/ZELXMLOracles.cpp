#include "ZELXMLOracles.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <algorithm>
#include <memory>
#include <pugixml.hpp>
#include <set>
#include <vector>

#include "ZELVBTXMLNode.h"
#include "ZELXMLTokenizer.h"

namespace {

// Trees are compared as texts: a line per tag with its depth, then a line per attribute. The separators
// are characters that no document can have.
void AppendTag(std::string& tree, std::size_t depth, std::string_view tag) {
    tree.append("\x01").append(std::to_string(depth)).append("\x02").append(tag);
}

void AppendAttribute(std::string& tree, std::string_view name, std::string_view value) {
    tree.append("\x03").append(name).append("\x04").append(value);
}

std::string Tree(const ZELVBTXMLDocument& document) {
    std::string tree;
    std::vector<ZELVBTXMLNode> level = {document.Root()};
    std::vector<ZELVBTXMLNodePosition> positions;
    while (!level.empty()) {
        if (positions.size() < level.size()) {
            AppendTag(tree, level.size(), level.back().getTag());
            for (const ZELVBTXMLAttribute& attribute : level.back().Attributes()) {
                AppendAttribute(tree, attribute.Name(), attribute.Value());
            }
            positions.push_back(level.back().getFirstNodePosition());
        }
        if (const ZELVBTXMLNode child = level.back().getNextNode(positions.back())) {
            level.push_back(child);
        } else {
            level.pop_back();
            positions.pop_back();
        }
    }
    return tree;
}

std::string Tree(const pugi::xml_document& document) {
    std::string tree;
    std::size_t depth = 1;
    for (pugi::xml_node node = document.document_element(); node;) {
        if (node.type() == pugi::node_element) {
            AppendTag(tree, depth, node.name());
            for (const pugi::xml_attribute& attribute : node.attributes()) {
                AppendAttribute(tree, attribute.name(), attribute.value());
            }
        }
        if (node.first_child()) {
            node = node.first_child();
            ++depth;
            continue;
        }
        while (node && !node.next_sibling()) {
            node = node.parent();
            --depth;
        }
        node = node.next_sibling();
        if (depth < 2) break;
    }
    return tree;
}

/// What libxml2 says. Namespaces are off: its first generation of handlers knows none.
struct LibxmlReading {
    bool wellFormed = false;  ///< an attribute given twice apart
    std::string tree;
    std::size_t depth = 0;
    std::set<int> faults;
};

void NoteStart(void* user, const xmlChar* tag, const xmlChar** attributes) {
    auto& reading = *static_cast<LibxmlReading*>(static_cast<xmlParserCtxt*>(user)->_private);
    const auto text = [](const xmlChar* bytes) { return reinterpret_cast<const char*>(bytes); };
    AppendTag(reading.tree, ++reading.depth, text(tag));
    for (; attributes != nullptr && attributes[0] != nullptr; attributes += 2) {
        AppendAttribute(reading.tree, text(attributes[0]), text(attributes[1]));
    }
}

void NoteEnd(void* user, const xmlChar*) {
    --static_cast<LibxmlReading*>(static_cast<xmlParserCtxt*>(user)->_private)->depth;
}

void NoteFault(void* user, xmlErrorPtr error) {
    if (error->level == XML_ERR_FATAL) static_cast<LibxmlReading*>(user)->faults.insert(error->code);
}

xmlParserInputPtr LoadNothing(const char*, const char*, xmlParserCtxtPtr) { return nullptr; }

LibxmlReading ReadWithLibxml(std::string_view text) {
    LibxmlReading reading;
    xmlSetExternalEntityLoader(LoadNothing);
    xmlSetStructuredErrorFunc(&reading, NoteFault);  // the context's own handler is for SAX 2 only
    const std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)> context(
        xmlCreateMemoryParserCtxt(text.data(), static_cast<int>(text.size())), xmlFreeParserCtxt);
    if (context == nullptr) return reading;
    xmlCtxtUseOptions(context.get(), XML_PARSE_SAX1 | XML_PARSE_NOENT | XML_PARSE_HUGE | XML_PARSE_NONET |
                                         XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    context->_private = &reading;
    context->sax->startElement = NoteStart;
    context->sax->endElement = NoteEnd;
    xmlParseDocument(context.get());
    xmlSetStructuredErrorFunc(nullptr, nullptr);
    const bool failed = context->wellFormed == 0 && reading.faults.empty();
    if (failed) reading.faults.insert(context->errNo);
    reading.faults.erase(XML_ERR_ATTRIBUTE_REDEFINED);
    reading.wellFormed = reading.faults.empty();
    xmlFreeDoc(context->myDoc);
    context->myDoc = nullptr;
    return reading;
}

bool HasAttributeTwice(const ZELVBTXMLDocument& document) {
    for (std::uint32_t element = 0; element < document.ElementCount(); ++element) {
        std::set<std::string_view> names;
        for (const ZELVBTXMLAttribute& attribute : document.ElementAt(element).Attributes()) {
            if (!names.insert(attribute.Name()).second) return true;
        }
    }
    return false;
}

/// Whether libxml2 may well accept what is refused here.
bool IsDeparture(std::string_view text, bool hasDoctype) {
    std::string padded(text);
    padded.append(ZELXMLTokenizer::kPadding, '\0');
    ZELXMLTapeStore store;
    ZELXMLTokenizer tokenizer(padded.data(), text.size(), store);
    tokenizer.Run();
    const std::string_view before = text.substr(0, tokenizer.FaultOffset());
    const std::string_view after = text.substr(before.size());
    switch (tokenizer.Fault()) {
        case ZELXMLFault::ForbiddenCharacter:
            return after.starts_with('\0');
        case ZELXMLFault::OtherEncodingMark:
        case ZELXMLFault::OtherEncodingDeclared:
        case ZELXMLFault::NotAscii:
            return true;
        case ZELXMLFault::ReferenceUndefined:
            return hasDoctype;
        case ZELXMLFault::DeclarationVersion:
            return after.starts_with("1.");
        case ZELXMLFault::DoctypeMalformed:
            return before.ends_with("<!DOCTYPE");
        default:
            return false;
    }
}

std::string CompareWithPugixml(std::string_view text, const std::string& tree) {
    pugi::xml_document document;
    const pugi::xml_parse_result result =
        document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
    if (!result) return std::string("pugixml refuses it: ") + result.description();
    return Tree(document) == tree ? "" : "pugixml sees another tree";
}

}  // namespace

std::string ZELXMLDisagreement(std::string_view text) {
    const bool hasDoctype = text.find("<!DOCTYPE") != std::string_view::npos;
    const bool mayHaveSubset = hasDoctype && text.find('[') != std::string_view::npos;
    ZELVBTXMLError error;
    const auto document = ZELVBTXMLDocument::CreateFromMemory(text, &error);
    const LibxmlReading libxml = ReadWithLibxml(text);
    if (document == nullptr) {
        if (!libxml.wellFormed || IsDeparture(text, hasDoctype)) return "";
        return "libxml2 accepts what is refused: " + error.reason;
    }
    const std::string tree = Tree(*document);
    if (!mayHaveSubset) {
        if (!libxml.wellFormed) {
            const std::string code = libxml.faults.empty() ? "" : std::to_string(*libxml.faults.begin());
            return "libxml2 refuses it with fault " + code;
        }
        if (!HasAttributeTwice(*document) && libxml.tree != tree) return "libxml2 sees another tree";
    }
    const std::string pugixml = CompareWithPugixml(text, tree);
    return mayHaveSubset && pugixml.starts_with("pugixml refuses") ? "" : pugixml;
}
