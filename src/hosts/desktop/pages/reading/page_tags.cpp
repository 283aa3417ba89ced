#include "hosts/desktop/pages/reading/page_tags.h"

#include <QHash>
#include <QString>
#include <array>

namespace desktop::pages {
namespace {

struct TagName {
  const char* name;
  Tag tag;
};

constexpr std::array kNames{
    TagName{"a", Tag::a},
    TagName{"address", Tag::address},
    TagName{"applet", Tag::leftOut},
    TagName{"article", Tag::section},
    TagName{"aside", Tag::section},
    TagName{"audio", Tag::leftOut},
    TagName{"b", Tag::b},
    TagName{"big", Tag::big},
    TagName{"blockquote", Tag::blockquote},
    TagName{"body", Tag::body},
    TagName{"br", Tag::br},
    TagName{"button", Tag::leftOut},
    TagName{"canvas", Tag::leftOut},
    TagName{"caption", Tag::caption},
    TagName{"center", Tag::center},
    TagName{"cite", Tag::em},
    TagName{"code", Tag::code},
    TagName{"col", Tag::col},
    TagName{"colgroup", Tag::colgroup},
    TagName{"dd", Tag::dd},
    TagName{"del", Tag::del},
    TagName{"dfn", Tag::em},
    TagName{"dir", Tag::ul},
    TagName{"div", Tag::div},
    TagName{"dl", Tag::dl},
    TagName{"dt", Tag::dt},
    TagName{"em", Tag::em},
    TagName{"fieldset", Tag::section},
    TagName{"figcaption", Tag::section},
    TagName{"figure", Tag::section},
    TagName{"font", Tag::font},
    TagName{"footer", Tag::section},
    TagName{"form", Tag::section},
    TagName{"frame", Tag::frame},
    TagName{"h1", Tag::h1},
    TagName{"h2", Tag::h2},
    TagName{"h3", Tag::h3},
    TagName{"h4", Tag::h4},
    TagName{"h5", Tag::h5},
    TagName{"h6", Tag::h6},
    TagName{"header", Tag::section},
    TagName{"hr", Tag::hr},
    TagName{"html", Tag::html},
    TagName{"i", Tag::i},
    TagName{"iframe", Tag::leftOut},
    TagName{"img", Tag::img},
    TagName{"ins", Tag::ins},
    TagName{"kbd", Tag::code},
    TagName{"li", Tag::li},
    TagName{"link", Tag::link},
    TagName{"main", Tag::section},
    TagName{"math", Tag::leftOut},
    TagName{"menu", Tag::ul},
    TagName{"nav", Tag::section},
    TagName{"nobr", Tag::nobr},
    TagName{"noframes", Tag::section},
    TagName{"object", Tag::leftOut},
    TagName{"ol", Tag::ol},
    TagName{"p", Tag::p},
    TagName{"pre", Tag::pre},
    TagName{"q", Tag::q},
    TagName{"s", Tag::s},
    TagName{"samp", Tag::code},
    TagName{"script", Tag::leftOut},
    TagName{"section", Tag::section},
    TagName{"select", Tag::leftOut},
    TagName{"small", Tag::small},
    TagName{"span", Tag::span},
    TagName{"strike", Tag::s},
    TagName{"strong", Tag::strong},
    TagName{"style", Tag::style},
    TagName{"sub", Tag::sub},
    TagName{"sup", Tag::sup},
    TagName{"svg", Tag::leftOut},
    TagName{"table", Tag::table},
    TagName{"tbody", Tag::tbody},
    TagName{"td", Tag::td},
    TagName{"textarea", Tag::leftOut},
    TagName{"tfoot", Tag::tfoot},
    TagName{"th", Tag::th},
    TagName{"thead", Tag::thead},
    TagName{"title", Tag::title},
    TagName{"tr", Tag::tr},
    TagName{"tt", Tag::tt},
    TagName{"u", Tag::u},
    TagName{"ul", Tag::ul},
    TagName{"var", Tag::em},
    TagName{"video", Tag::leftOut},
    TagName{"wbr", Tag::wbr},
    TagName{"xml", Tag::leftOut},
    TagName{"xmp", Tag::pre},
};

QHash<QString, Tag> tableOfNames() {
  QHash<QString, Tag> table;
  for (const TagName& each : kNames) table.insert(QString::fromLatin1(each.name), each.tag);
  return table;
}

bool isBetween(Tag tag, Tag first, Tag last) { return tag >= first && tag <= last; }

}  // namespace

Tag tagNamed(QStringView name) {
  static const QHash<QString, Tag> names = tableOfNames();
  return names.value(name.toString(), Tag::other);
}

bool isBlock(Tag tag) { return isBetween(tag, Tag::address, Tag::ul); }

bool isVoid(Tag tag) {
  switch (tag) {
    case Tag::br:
    case Tag::hr:
    case Tag::img:
    case Tag::col:
    case Tag::wbr:
    case Tag::link:
    case Tag::frame:
      return true;
    default:
      return false;
  }
}

bool isSection(Tag tag) { return tag == Tag::thead || tag == Tag::tbody || tag == Tag::tfoot; }

bool isCell(Tag tag) { return tag == Tag::td || tag == Tag::th; }

bool isTablePart(Tag tag) { return isBetween(tag, Tag::caption, Tag::tr) && tag != Tag::table; }

}  // namespace desktop::pages
