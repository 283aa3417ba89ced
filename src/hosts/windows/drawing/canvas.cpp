#include "hosts/windows/drawing/canvas.h"

#include <algorithm>
#include <array>

#include "hosts/windows/drawing/artwork.h"

namespace windows {
namespace {

Gdiplus::Color colorOf(forms::Color color, int strength = 255) {
  const auto part = [color](int shift) { return static_cast<BYTE>((color >> shift) & 0xFF); };
  return {static_cast<BYTE>(strength), part(0), part(8), part(16)};
}

Gdiplus::RectF boxOf(const RECT& rect, float inset = 0) {
  return {static_cast<float>(rect.left) + inset, static_cast<float>(rect.top) + inset,
          static_cast<float>(widthOf(rect)) - 2 * inset, static_cast<float>(heightOf(rect)) - 2 * inset};
}

void addRound(Gdiplus::GraphicsPath& path, const Gdiplus::RectF& box, float radius) {
  const float size = std::min({2 * radius, box.Width, box.Height});
  const float right = box.X + box.Width - size;
  const float bottom = box.Y + box.Height - size;
  path.AddArc(box.X, box.Y, size, size, 180, 90);
  path.AddArc(right, box.Y, size, size, 270, 90);
  path.AddArc(right, bottom, size, size, 0, 90);
  path.AddArc(box.X, bottom, size, size, 90, 90);
  path.CloseFigure();
}

}  // namespace

void Canvas::fill(const RECT& rect, forms::Color color) {
  const BrushHandle brush(CreateSolidBrush(static_cast<COLORREF>(color)));
  FillRect(device_, &rect, brush.get());
}

void Canvas::fillRound(const RECT& rect, double radius, forms::Color color, std::optional<forms::Color> border,
                       int strength) {
  if (IsRectEmpty(&rect) != FALSE) return;
  Gdiplus::GraphicsPath path;
  addRound(path, boxOf(rect, border ? 0.5F : 0), scale_.exact(radius));
  const Gdiplus::SolidBrush brush(colorOf(color, strength));
  graphics_.FillPath(&brush, &path);
  if (!border) return;
  const Gdiplus::Pen pen(colorOf(*border));
  graphics_.DrawPath(&pen, &path);
}

void Canvas::drawRound(const RECT& rect, double radius, forms::Color color, double thickness) {
  const float width = scale_.exact(thickness);
  Gdiplus::GraphicsPath path;
  addRound(path, boxOf(rect, width / 2), scale_.exact(radius));
  const Gdiplus::Pen pen(colorOf(color), width);
  graphics_.DrawPath(&pen, &path);
}

void Canvas::picture(const std::string& name, const RECT& rect, double strength) {
  Gdiplus::Bitmap* bitmap = artwork::picture(name);
  if (bitmap == nullptr || IsRectEmpty(&rect) != FALSE) return;
  const auto width = static_cast<float>(bitmap->GetWidth());
  const auto height = static_cast<float>(bitmap->GetHeight());
  const Gdiplus::RectF box = boxOf(rect);
  const float share = std::min(box.Width / width, box.Height / height);
  const Gdiplus::RectF target(box.X + (box.Width - width * share) / 2, box.Y + (box.Height - height * share) / 2,
                              width * share, height * share);
  Gdiplus::ColorMatrix matrix{
      {{1, 0, 0, 0, 0}, {0, 1, 0, 0, 0}, {0, 0, 1, 0, 0}, {0, 0, 0, static_cast<float>(strength), 0}, {0, 0, 0, 0, 1}}};
  Gdiplus::ImageAttributes attributes;
  attributes.SetColorMatrix(&matrix);
  attributes.SetWrapMode(Gdiplus::WrapModeTileFlipXY);  // no dark edges
  graphics_.DrawImage(bitmap, target, 0, 0, width, height, Gdiplus::UnitPixel, &attributes);
}

void Canvas::text(const std::wstring& text, RECT rect, HFONT font, forms::Color color, UINT format) {
  const SelectedObject selected(device_, font);
  SetBkMode(device_, TRANSPARENT);
  SetTextColor(device_, static_cast<COLORREF>(color));
  DrawTextW(device_, text.c_str(), static_cast<int>(text.size()), &rect, format);
}

void Canvas::line(const std::vector<POINT>& points, forms::Color color, double thickness) {
  std::vector<Gdiplus::PointF> exact;
  for (const POINT& point : points) exact.emplace_back(static_cast<float>(point.x), static_cast<float>(point.y));
  Gdiplus::Pen pen(colorOf(color), scale_.exact(thickness));
  pen.SetLineCap(Gdiplus::LineCapRound, Gdiplus::LineCapRound, Gdiplus::DashCapRound);
  pen.SetLineJoin(Gdiplus::LineJoinRound);
  graphics_.DrawLines(&pen, exact.data(), static_cast<INT>(exact.size()));
}

}  // namespace windows
