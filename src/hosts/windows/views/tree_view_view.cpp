#include "hosts/windows/views/tree_view_view.h"

#include <algorithm>

#include "hosts/screen/indicator_text.h"
#include "hosts/screen/palette.h"
#include "hosts/screen/tree_text.h"
#include "hosts/windows/drawing/fonts.h"
#include "hosts/windows/drawing/ruler.h"
#include "hosts/windows/win32/clipboard.h"
#include "hosts/windows/win32/wide_text.h"

namespace windows {
namespace {

using namespace screen::palette;

constexpr double kIndent = 16;
constexpr double kRowPadding = 5;
constexpr double kMargin = 6;  // right of the figures
constexpr double kGap = 10;    // between a text and its figure
constexpr UINT kBroken = DT_LEFT | DT_TOP | DT_WORDBREAK | DT_NOPREFIX;
constexpr const wchar_t* kHint = L"Elija un lugar en el mapa para ver aquí sus indicadores.";

struct Parts {
  std::wstring text;
  std::wstring figure;
};

Parts partsOf(const forms::Node& node) {
  const screen::IndicatorText parts = screen::splitIndicator(node.text());
  return {wide(parts.text + (parts.figure.empty() ? "" : ":")), wide(parts.figure)};
}

// The tree's own node, which may be written; a node is handed out for reading.
forms::Node* ownNode(const forms::TreeView& tree, const forms::Node& node) {
  const forms::Node* parent = node.parent() == nullptr ? nullptr : ownNode(tree, *node.parent());
  const auto& siblings = parent == nullptr ? tree.roots() : parent->children();
  const auto own = std::ranges::find(siblings, &node, [](const auto& sibling) { return sibling.get(); });
  return own == siblings.end() ? nullptr : own->get();
}

int depthOf(const forms::Node& node) {
  int depth = 0;
  for (const forms::Node* above = node.parent(); above != nullptr; above = above->parent()) ++depth;
  return depth;
}

}  // namespace

TreeViewView::TreeViewView(forms::TreeView& tree, ViewContext& context, HWND parent)
    : ControlView(tree, context, parent), tree_(tree) {
  create(WC_TREEVIEWW, TVS_HASBUTTONS | TVS_LINESATROOT | TVS_NOHSCROLL | TVS_NOTOOLTIPS | TVS_NONEVENHEIGHT |
                           TVS_FULLROWSELECT | WS_TABSTOP);
  for (const auto& root : tree.roots()) addWithChildren(*root);
}

forms::Color TreeViewView::surface() const { return kCard; }

void TreeViewView::rescale() {
  forms::FontSpec spec = tree_.font;
  spec.bold = true;
  bold_ = makeFont(spec, scale());
  ControlView::rescale();
  SendMessageW(window(), TVM_SETINDENT, static_cast<WPARAM>(scale().of(kIndent)), 0);
  SendMessageW(window(), TVM_SETITEMHEIGHT, static_cast<WPARAM>(lineHeight()), 0);
  SendMessageW(window(), TVM_SETBKCOLOR, 0, kCard);
  fittedWidth_ = 0;
  fitRows();
}

void TreeViewView::sync(forms::Property property) {
  ControlView::sync(property);
  if (property == forms::Property::Width || property == forms::Property::Left) fitRows();
}

int TreeViewView::lineHeight() const {
  const Ruler ruler(window(), bold_.get());
  return ruler.heightIn(L"Ág", 1000, kBroken) + scale().of(kRowPadding);
}

HFONT TreeViewView::fontOf(const forms::Node& node) const { return node.style().bold ? bold_.get() : font(); }

int TreeViewView::leftOf(const forms::Node& node) const { return scale().of(kIndent) * (depthOf(node) + 1); }

int TreeViewView::linesOf(const forms::Node& node) const {
  const Parts parts = partsOf(node);
  int width = fittedWidth_ - leftOf(node) - scale().of(kMargin);
  if (!parts.figure.empty()) width -= Ruler(window(), bold_.get()).widthOf(parts.figure) + scale().of(kGap);
  const int line = lineHeight();
  const int needed =
      Ruler(window(), fontOf(node)).heightIn(parts.text, std::max(1, width), kBroken) + scale().of(kRowPadding);
  return std::max(1, (needed + line - 1) / line);
}

// Another width breaks the texts elsewhere.
void TreeViewView::fitRows() {
  const int width = clientRect().right;
  if (width == fittedWidth_ || width == 0) return;
  fittedWidth_ = width;
  for (const auto& [node, item] : items_) {
    TVITEMEXW row{};
    row.mask = TVIF_HANDLE | TVIF_INTEGRAL;
    row.hItem = item;
    row.iIntegral = linesOf(*node);
    SendMessageW(window(), TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&row));
  }
}

void TreeViewView::cleared() {
  items_.clear();
  SendMessageW(window(), TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
  repaint();
}

void TreeViewView::nodeAdded(const forms::Node& node) {
  if (fittedWidth_ == 0) fittedWidth_ = clientRect().right;
  const auto parent = items_.find(node.parent());
  const std::wstring text = wide(node.text());
  std::wstring writable = text;
  TVINSERTSTRUCTW insert{};
  insert.hParent = parent == items_.end() ? TVI_ROOT : parent->second;
  insert.hInsertAfter = TVI_LAST;
  insert.itemex.mask = TVIF_TEXT | TVIF_PARAM | TVIF_STATE | TVIF_INTEGRAL;
  insert.itemex.pszText = writable.data();
  insert.itemex.lParam = reinterpret_cast<LPARAM>(&node);
  insert.itemex.stateMask = TVIS_BOLD;
  insert.itemex.state = node.style().bold ? TVIS_BOLD : 0U;
  insert.itemex.iIntegral = linesOf(node);
  items_[&node] =
      reinterpret_cast<HTREEITEM>(SendMessageW(window(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
  nodeExpanded(node);
  if (node.parent() != nullptr) nodeExpanded(*node.parent());
}

void TreeViewView::addWithChildren(const forms::Node& node) {
  nodeAdded(node);
  for (const auto& child : node.children()) addWithChildren(*child);
}

// A node without children cannot be open yet; it is opened with its first one.
void TreeViewView::nodeExpanded(const forms::Node& node) {
  const auto item = items_.find(&node);
  if (item == items_.end() || node.children().empty()) return;
  quiet_ = true;
  SendMessageW(window(), TVM_EXPAND, node.expanded() ? TVE_EXPAND : TVE_COLLAPSE,
               reinterpret_cast<LPARAM>(item->second));
  quiet_ = false;
}

void TreeViewView::expanded(const NMTREEVIEWW& change) {
  const auto* node = reinterpret_cast<const forms::Node*>(change.itemNew.lParam);
  if (quiet_ || node == nullptr || !items_.contains(node)) return;
  if (forms::Node* own = ownNode(tree_, *node)) own->userExpand(change.action == TVE_EXPAND);
}

const forms::Node* TreeViewView::chosen() const {
  TVITEMEXW row{};
  row.mask = TVIF_HANDLE | TVIF_PARAM;
  row.hItem = reinterpret_cast<HTREEITEM>(SendMessageW(window(), TVM_GETNEXTITEM, TVGN_CARET, 0));
  if (row.hItem == nullptr) return nullptr;
  SendMessageW(window(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&row));
  return reinterpret_cast<const forms::Node*>(row.lParam);
}

void TreeViewView::copyChosen() const {
  if (const forms::Node* node = chosen()) copyText(window(), screen::branchText(tree_, *node).text);
}

void TreeViewView::chooseAt(LPARAM point) const {
  TVHITTESTINFO hit{};
  hit.pt = {GET_X_LPARAM(point), GET_Y_LPARAM(point)};
  SendMessageW(window(), TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  if (hit.hItem != nullptr) SendMessageW(window(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(hit.hItem));
}

// At the pointer, or at the chosen row when the keyboard asks.
void TreeViewView::offerMenu(LPARAM point) {
  enum Command : UINT_PTR { kCopy = 1, kCopyAll };
  POINT at{GET_X_LPARAM(point), GET_Y_LPARAM(point)};
  if (at.x == -1 && at.y == -1) {
    at = {0, 0};
    ClientToScreen(window(), &at);
  }
  const HWND own = window();
  const HMENU menu = CreatePopupMenu();
  AppendMenuW(menu, chosen() == nullptr ? MF_GRAYED : MF_ENABLED, kCopy, L"&Copiar\tCtrl+C");
  AppendMenuW(menu, items_.empty() ? MF_GRAYED : MF_ENABLED, kCopyAll, L"Copiar &todo");
  const auto command =
      static_cast<UINT_PTR>(TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, 0, own, nullptr));
  DestroyMenu(menu);
  if (IsWindow(own) == FALSE) return;  // the form may have been closed meanwhile, and this with it
  if (command == kCopy) copyChosen();
  if (command == kCopyAll) copyText(window(), screen::treeText(tree_).text);
}

std::optional<LRESULT> TreeViewView::notified(NMHDR& notice) {
  switch (notice.code) {
    case TVN_ITEMEXPANDEDW:
      expanded(reinterpret_cast<const NMTREEVIEWW&>(notice));
      return 0;
    case NM_CUSTOMDRAW:
      return draw(reinterpret_cast<NMTVCUSTOMDRAW&>(notice));
    default:
      return std::nullopt;
  }
}

LRESULT TreeViewView::draw(NMTVCUSTOMDRAW& drawing) {
  switch (drawing.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
      return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT: {
      const auto* node = reinterpret_cast<const forms::Node*>(drawing.nmcd.lItemlParam);
      if (node == nullptr || widthOf(drawing.nmcd.rc) <= 0) return CDRF_DODEFAULT;
      drawBuffered(drawing.nmcd.hdc, drawing.nmcd.rc, scale(),
                   [&](Canvas& canvas) { drawItem(canvas, *node, drawing.nmcd.rc, drawing.nmcd.uItemState); });
      return CDRF_SKIPDEFAULT;
    }
    default:
      return CDRF_DODEFAULT;
  }
}

void TreeViewView::drawItem(Canvas& canvas, const forms::Node& node, const RECT& row, UINT state) const {
  const bool isChosen = (state & CDIS_SELECTED) != 0;
  const bool hasKeyboard = GetFocus() == window();
  canvas.fill(row, kCard);
  RECT inside = row;
  inside.left = leftOf(node);
  const int half = scale().of(kRowPadding) / 2;
  if (isChosen) {
    RECT light = inside;
    light.left -= half;
    canvas.fillRound(light, 4, hasKeyboard ? kNavy : kNavyTint);
  }
  const bool isReversed = isChosen && hasKeyboard;
  drawMark(canvas, node, row, inside.left);
  const forms::Color ink = isReversed ? kCard : node.style().color.value_or(tree_.foreColor.value_or(kInk));
  const Parts parts = partsOf(node);
  inside.right -= scale().of(kMargin);
  RECT figure = inside;
  if (!parts.figure.empty()) {
    inside.right -= Ruler(window(), bold_.get()).widthOf(parts.figure) + scale().of(kGap);
  }
  inside.top += (heightOf(inside) - Ruler(window(), fontOf(node)).heightIn(parts.text, widthOf(inside), kBroken)) / 2;
  figure.top = inside.top;
  canvas.text(parts.figure, figure, bold_.get(), ink, DT_RIGHT | DT_TOP | DT_SINGLELINE | DT_NOPREFIX);
  canvas.text(parts.text, inside, fontOf(node), ink, kBroken);
}

// The arrow before what can be opened; it points down when it is open.
void TreeViewView::drawMark(Canvas& canvas, const forms::Node& node, const RECT& row, int left) const {
  if (node.children().empty()) return;
  const int size = scale().of(4);
  const int x = left - scale().of(kIndent) / 2 - size / 4;
  const int y = row.top + lineHeight() / 2;
  if (node.expanded()) {
    canvas.line({{x - size, y - size / 2}, {x, y + size / 2}, {x + size, y - size / 2}}, kMuted, 1.6);
  } else {
    canvas.line({{x - size / 2, y - size}, {x + size / 2, y}, {x - size / 2, y + size}}, kMuted, 1.6);
  }
}

// A tree without nodes says how to fill it.
void TreeViewView::drawHint() const {
  constexpr double kInset = 12;
  const WindowDevice device(window());
  RECT inside = clientRect();
  InflateRect(&inside, -scale().of(kInset), -scale().of(kInset));
  Canvas(device.get(), scale()).text(kHint, inside, font(), kMuted, DT_CENTER | DT_TOP | DT_WORDBREAK | DT_NOPREFIX);
}

std::optional<LRESULT> TreeViewView::handle(UINT message, WPARAM wideWord, LPARAM large) {
  switch (message) {
    case WM_PAINT:
      if (!items_.empty()) break;
      passOn(message, wideWord, large);
      drawHint();
      return 0;
    case WM_SIZE: {
      const LRESULT answer = passOn(message, wideWord, large);
      fitRows();
      return answer;
    }
    case WM_RBUTTONDOWN:
      chooseAt(large);
      break;
    case WM_CONTEXTMENU:
      offerMenu(large);
      return 0;
    case WM_KEYDOWN:
      if (wideWord != 'C' || GetKeyState(VK_CONTROL) >= 0) break;
      copyChosen();
      return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      repaint();
      break;
    default:
      break;
  }
  return ControlView::handle(message, wideWord, large);
}

}  // namespace windows
