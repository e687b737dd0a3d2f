// Bookmarks: which count, and how one is filled.
#include <set>

#include "host/report/word_document.h"
#include "host/report/word_markup.h"

namespace zwt {

namespace {

bool IsBookmarkPart(pugi::xml_node node) {
  return IsNamed(node, "w:bookmarkStart") || IsNamed(node, "w:bookmarkEnd");
}

pugi::xml_node EndOf(pugi::xml_node start, const std::string& id) {
  for (pugi::xml_node node = NextBehind(start); node; node = NextInText(node)) {
    if (IsNamed(node, "w:bookmarkEnd") && id == node.attribute("w:id").value()) return node;
  }
  return {};
}

/// The runs that lie whole between two places of the text.
std::vector<pugi::xml_node> RunsBetween(pugi::xml_node start, pugi::xml_node end) {
  std::vector<pugi::xml_node> runs;
  for (pugi::xml_node node = NextBehind(start); node && node != end;) {
    if (IsNamed(node, "w:r")) {
      runs.push_back(node);
      node = NextBehind(node);
    } else {
      node = NextInText(node);
    }
  }
  return runs;
}

/// Joins the paragraph in which a bookmark ends to the one in which it starts, when what lay between is gone.
void JoinParagraphs(pugi::xml_node first, pugi::xml_node last) {
  if (!first || !last || first == last || first.parent() != last.parent()) return;
  for (pugi::xml_node between = first.next_sibling(); between && between != last;) {
    const pugi::xml_node next = between.next_sibling();
    if (!IsNamed(between, "w:p")) return;
    for (pugi::xml_node kept = between.first_child(); kept;) {
      const pugi::xml_node following = kept.next_sibling();
      if (IsBookmarkPart(kept)) first.append_move(kept);
      kept = following;
    }
    between.parent().remove_child(between);
    between = next;
  }
  for (pugi::xml_node child = last.first_child(); child;) {
    const pugi::xml_node following = child.next_sibling();
    if (!IsNamed(child, "w:pPr")) first.append_move(child);
    child = following;
  }
  last.parent().remove_child(last);
}

/// How the text before a place looks: the properties of the run before it, or those of the paragraph's mark.
pugi::xml_node LookBefore(pugi::xml_node start) {
  for (pugi::xml_node before = start.previous_sibling(); before; before = before.previous_sibling()) {
    if (IsNamed(before, "w:r")) return before.child("w:rPr");
  }
  return start.parent().child("w:pPr").child("w:rPr");
}

/// A new run behind the start of a bookmark, or at the front of the paragraph that follows it.
pugi::xml_node NewRunAt(pugi::xml_node start) {
  const pugi::xml_node paragraph = ParagraphOf(start);
  if (!paragraph) return {};
  for (pugi::xml_node around = start.parent(); around; around = around.parent()) {
    if (around == paragraph) return start.parent().insert_child_after("w:r", start);
  }
  const pugi::xml_node properties = paragraph.child("w:pPr");
  pugi::xml_node target = paragraph;
  return properties ? target.insert_child_after("w:r", properties) : target.prepend_child("w:r");
}

}  // namespace

/// Word processors leave starts without an end behind, with the name of a whole bookmark: those count for
/// nothing.
void WordDocument::CollectBookmarks(pugi::xml_node story) {
  std::set<std::string> ended;
  for (pugi::xml_node node = story.first_child(); node; node = NextInText(node)) {
    if (IsNamed(node, "w:bookmarkEnd")) ended.insert(node.attribute("w:id").value());
  }
  for (pugi::xml_node node = story.first_child(); node;) {
    if (IsNamed(node, "mc:Fallback")) {
      node = NextBehind(node);
      continue;
    }
    const std::string id = node.attribute("w:id").value();
    const bool isOwn = node.attribute("w:name").value()[0] != '_';
    if (IsNamed(node, "w:bookmarkStart") && isOwn && ended.contains(id)) bookmarks_.push_back({node, id});
    node = NextInText(node);
  }
}

void WordDocument::WriteBookmark(int index, const std::string& text) {
  if (index < 1 || index > BookmarkCount()) return;
  const Bookmark& bookmark = bookmarks_[static_cast<std::size_t>(index - 1)];
  const pugi::xml_node end = EndOf(bookmark.start, bookmark.id);
  const auto spanned = end ? RunsBetween(bookmark.start, end) : std::vector<pugi::xml_node>();
  pugi::xml_document look;
  const pugi::xml_node model = spanned.empty() ? LookBefore(bookmark.start) : spanned.front().child("w:rPr");
  if (model) look.append_copy(model);
  for (const pugi::xml_node& run : spanned) run.parent().remove_child(run);
  if (end && IsNamed(bookmark.start.parent(), "w:p")) JoinParagraphs(bookmark.start.parent(), end.parent());
  pugi::xml_node run = NewRunAt(bookmark.start);
  if (!run) return;
  if (look.first_child()) run.append_copy(look.first_child());
  FillRun(run, text);
}

}  // namespace zwt
