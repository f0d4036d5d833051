// Books: an archive with a list of files in their order, each a page of XHTML.
#include "pack/Message.h"
#include "pack/ZipFile.h"
#include "pack/texts/BroughtText.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <libxml/HTMLparser.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <array>
#include <charconv>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace talvora::pack {

namespace {

struct FreeDocument {
  void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
using Document = std::unique_ptr<xmlDoc, FreeDocument>;

constexpr std::string_view container = "META-INF/container.xml";
constexpr std::size_t longestTitle = 60;
/// Pages nested deeper than this are no book's.
constexpr int deepest = 200;

// What begins a paragraph, and what is no text at all.
constexpr std::array<std::string_view, 16> blocks = {
    "p",  "div", "li",         "h1", "h2", "h3", "h4",      "h5",
    "h6", "br",  "blockquote", "tr", "dt", "dd", "section", "figcaption"};
constexpr std::array<std::string_view, 6> silent = {"script", "style", "head", "sup", "svg", "nav"};
constexpr std::array<std::string_view, 3> headings = {"h1", "h2", "h3"};

std::string_view nameOf(const xmlNode* node) {
  return node->name == nullptr ? "" : reinterpret_cast<const char*>(node->name);
}

std::string attributeOf(const xmlNode* node, const char* name) {
  for (const xmlAttr* each = node->properties; each != nullptr; each = each->next) {
    const bool isIt = std::string_view(reinterpret_cast<const char*>(each->name)) == name;
    if (!isIt || each->children == nullptr || each->children->content == nullptr) continue;
    return reinterpret_cast<const char*>(each->children->content);
  }
  return {};
}

Document xmlFrom(const std::string& bytes) {
  return Document(
      xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), "", nullptr,
                    XML_PARSE_NONET | XML_PARSE_RECOVER | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
}

Document pageFrom(const std::string& bytes) {
  return Document(htmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), "", "UTF-8",
                                 HTML_PARSE_NONET | HTML_PARSE_RECOVER | HTML_PARSE_NOERROR |
                                     HTML_PARSE_NOWARNING));
}

/// All elements of a name, in their order.
void elementsNamed(const xmlNode* node, std::string_view name, int depth,
                   std::vector<const xmlNode*>& found) {
  if (depth > deepest) return;
  for (; node != nullptr; node = node->next) {
    if (node->type != XML_ELEMENT_NODE) continue;
    if (nameOf(node) == name) found.push_back(node);
    elementsNamed(node->children, name, depth + 1, found);
  }
}

std::vector<const xmlNode*> elementsNamed(const Document& document, std::string_view name) {
  std::vector<const xmlNode*> found;
  if (document) elementsNamed(document->children, name, 0, found);
  return found;
}

/// Takes the paragraphs out of a page.
class Page {
 public:
  BroughtChapter read(const Document& document) {
    if (document) walk(document->children, 0);
    endParagraph();
    return std::move(chapter_);
  }

 private:
  void walk(const xmlNode* node, int depth) {
    if (depth > deepest) return;
    for (; node != nullptr; node = node->next) {
      if (node->type == XML_TEXT_NODE && node->content != nullptr) {
        add(reinterpret_cast<const char*>(node->content));
      } else if (node->type == XML_ELEMENT_NODE && !contains(silent, nameOf(node))) {
        enter(node, depth);
      }
    }
  }

  void enter(const xmlNode* node, int depth) {
    const std::string_view name = nameOf(node);
    const bool isBlock = contains(blocks, name);
    if (isBlock) endParagraph();
    walk(node->children, depth + 1);
    if (contains(headings, name) && chapter_.title.empty()) {
      chapter_.title = std::exchange(paragraph_, {});
    } else if (isBlock) {
      endParagraph();
    }
  }

  /// Runs of blanks and line ends are one blank.
  void add(std::string_view text) {
    for (const char each : text) {
      const bool isBlank = each == ' ' || each == '\n' || each == '\r' || each == '\t';
      if (!isBlank) {
        paragraph_ += each;
      } else if (!paragraph_.empty() && !paragraph_.ends_with(' ')) {
        paragraph_ += ' ';
      }
    }
  }

  void endParagraph() {
    std::string paragraph(trim(std::exchange(paragraph_, {})));
    if (!paragraph.empty()) chapter_.paragraphs.push_back(std::move(paragraph));
  }

  BroughtChapter chapter_;
  std::string paragraph_;
};

/// "%20" as a blank.
std::string unescaped(std::string_view address) {
  constexpr int base = 16;
  std::string path;
  for (std::size_t at = 0; at < address.size(); ++at) {
    unsigned value = 0;
    const char* const digits = address.data() + at + 1;
    if (address[at] == '%' && at + 2 < address.size() &&
        std::from_chars(digits, digits + 2, value, base).ptr == digits + 2) {
      path += static_cast<char>(value);
      at += 2;
    } else {
      path += address[at];
    }
  }
  return path.substr(0, path.find('#'));
}

/// The names of the book's pages in their order, as the archive has them.
std::vector<std::string> pagesOf(const std::map<std::string, std::string>& entries,
                                 const std::string& listName) {
  const auto list = entries.find(listName);
  if (list == entries.end()) return {};
  const Document document = xmlFrom(list->second);
  std::map<std::string, std::string> byId;
  for (const xmlNode* const item : elementsNamed(document, "item"))
    byId[attributeOf(item, "id")] = attributeOf(item, "href");
  const std::filesystem::path folder = std::filesystem::path(listName).parent_path();
  std::vector<std::string> pages;
  for (const xmlNode* const place : elementsNamed(document, "itemref")) {
    const auto item = byId.find(attributeOf(place, "idref"));
    if (item != byId.end())
      pages.push_back((folder / unescaped(item->second)).lexically_normal().generic_string());
  }
  return pages;
}

} // namespace

std::vector<BroughtChapter> chaptersOfBook(std::string_view bytes, const std::string& file,
                                           Problems& problems) {
  const ZipContent archive = zipContentOf(bytes);
  if (!archive.entries) {
    problems.add({file}, archive.problem);
    return {};
  }
  const auto& entries = *archive.entries;
  const auto root = entries.find(std::string(container));
  const Document document = root == entries.end() ? nullptr : xmlFrom(root->second);
  const auto lists = elementsNamed(document, "rootfile");
  if (lists.empty()) {
    problems.add({file}, said("this is no EPUB book: META-INF/container.xml is missing"));
    return {};
  }
  std::vector<BroughtChapter> chapters;
  for (const std::string& name : pagesOf(entries, attributeOf(lists.front(), "full-path"))) {
    const auto page = entries.find(name);
    if (page == entries.end()) continue;
    BroughtChapter chapter = Page().read(pageFrom(page->second));
    if (chapter.title.size() > longestTitle) chapter.title.clear();
    if (!chapter.paragraphs.empty()) chapters.push_back(std::move(chapter));
  }
  return chapters;
}

} // namespace talvora::pack
