#include "cli/svg_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "host/drawing/display_colors.h"
#include "host/text/number_text.h"

namespace zwt {
namespace {

/// Of the larger side of what is shown.
constexpr double kMargin = 0.02;
constexpr double kLineWidth = 0.001;
constexpr double kDotWidth = 0.002;

/// Longer side of the picture where nothing else says how large to show it, pixels.
constexpr double kShownSize = 1600;

/// Heights in parts of the font's size, as Chinese fonts have them.
constexpr double kCapitalHeight = 0.733;

constexpr std::string_view kFonts =
    "'Noto Sans CJK SC','Source Han Sans SC','Microsoft YaHei','PingFang SC','SimHei','SimSun',sans-serif";

/// What of the text XML cannot hold is left out or replaced.
std::string Escaped(std::wstring_view text) {
  CString allowed;
  for (const wchar_t letter : text) {
    if (letter >= L' ' || letter == L'\t') allowed += letter == 0xFFFE || letter == 0xFFFF ? 0xFFFD : letter;
  }
  std::string escaped;
  for (const char byte : Utf8FromWide(allowed)) {
    switch (byte) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      default:
        escaped += byte;
    }
  }
  return escaped;
}

class SvgWriter {
 public:
  explicit SvgWriter(const DisplayList& list) : list_(list), box_(list.Extents()) {
    if (box_.IsEmpty()) box_.Add(PlanePoint{});
    const double side = std::max(box_.Width(), box_.Height());
    const double margin = side > 0 ? side * kMargin : 1;
    box_.low = {box_.low.x - margin, box_.low.y - margin};
    box_.high = {box_.high.x + margin, box_.high.y + margin};
    size_ = std::max(box_.Width(), box_.Height());
    decimals_ = std::clamp(6 - static_cast<int>(std::ceil(std::log10(size_))), 0, 9);
  }

  std::string Write() {
    WriteHead();
    WritePaths(list_.areas, "fill");
    svg_ += "<g fill=\"none\" stroke-linecap=\"round\" stroke-linejoin=\"round\" stroke-width=\"" +
            Number(size_ * kLineWidth) + "\">\n";
    WritePaths(list_.strokes, "stroke");
    WriteMarks();
    svg_ += "</g>\n<g xml:space=\"preserve\" font-family=\"" + std::string(kFonts) + "\">\n";
    for (const DisplayText& text : list_.texts) {
      if (list_.Shows(text)) WriteText(text);
    }
    return std::move(svg_ += "</g>\n</svg>\n");
  }

 private:
  /// With the decimals of the picture, zeros at the end left out.
  std::string Number(double value) const {
    std::string text = Utf8FromWide(FormatFixed(value, decimals_));
    if (decimals_ > 0) {
      text.erase(text.find_last_not_of('0') + 1);
      if (text.back() == '.') text.pop_back();
    }
    return text == "-0" ? "0" : text;
  }

  std::string Place(const PlanePoint& point) const {
    return Number(point.x - box_.low.x) + " " + Number(box_.high.y - point.y);
  }

  static std::string Color(std::int32_t color) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const std::int32_t shown = ColorOnGround(color, true);
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4)
      text += kDigits[static_cast<std::size_t>(shown >> shift & 15)];
    return text;
  }

  void WriteHead() {
    const std::string width = Number(box_.Width());
    const std::string height = Number(box_.Height());
    const double scale = kShownSize / size_;
    svg_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
           Utf8FromWide(FormatFixed(std::max(1.0, box_.Width() * scale), 0)) + "\" height=\"" +
           Utf8FromWide(FormatFixed(std::max(1.0, box_.Height() * scale), 0)) + "\" viewBox=\"0 0 " + width +
           " " + height + "\">\n<rect width=\"" + width + "\" height=\"" + height + "\" fill=\"#ffffff\"/>\n";
  }

  /// Neighbours of one colour are one element.
  void WritePaths(const std::vector<DisplayPath>& paths, std::string_view paint) {
    std::string data;
    std::int32_t color = 0;
    const auto end = [&] {
      if (!data.empty())
        svg_ += "<path " + std::string(paint) + "=\"" + Color(color) + "\" d=\"" + data + "\"/>\n";
      data.clear();
    };
    for (const DisplayPath& path : paths) {
      if (!list_.Shows(path)) continue;
      if (path.color != color) end();
      color = path.color;
      char command = 'M';
      for (const PlanePoint& point : list_.PointsOf(path)) {
        data += command + Place(point);
        command = 'L';
      }
      if (path.closed) data += 'Z';
    }
    end();
  }

  void WriteMarks() {
    for (const DisplayMark& mark : list_.marks) {
      if (!list_.Shows(mark)) continue;
      svg_ += "<path stroke=\"" + Color(mark.color) + "\" stroke-width=\"" + Number(size_ * kDotWidth) +
              "\" d=\"M" + Place(mark.position) + "h0\"/>\n";
    }
  }

  std::string Turned(const DisplayText& text) const {
    constexpr double kDegrees = 180 / std::numbers::pi;
    const auto degrees = [](double angle) {
      CString shown = FormatBound(std::round(angle * kDegrees * 1000) / 1000);
      return Utf8FromWide(shown == L"-0" ? L"0" : shown);
    };
    const double width = text.fitWidth > 0 ? (text.widthFactor < 0 ? -1 : 1) : text.widthFactor;
    std::string transform = "translate(" + Place(text.position) + ")";
    if (text.angle != 0) transform += " rotate(" + degrees(-text.angle) + ")";
    if (text.slant != 0) transform += " skewX(" + degrees(-text.slant) + ")";
    if (width != 1) transform += " scale(" + Utf8FromWide(FormatBound(std::round(width * 1e6) / 1e6)) + " 1)";
    return transform;
  }

  void WriteText(const DisplayText& text) {
    constexpr std::array<std::string_view, 3> kAnchors = {"", " text-anchor=\"middle\"",
                                                          " text-anchor=\"end\""};
    svg_ += "<text transform=\"" + Turned(text) + "\"";
    const double below = BaselineBelow(text.level) * text.height;
    if (below != 0) svg_ += " y=\"" + Number(below) + "\"";
    svg_ += " font-size=\"" + Number(text.height / kCapitalHeight) + "\"";
    svg_ += kAnchors[static_cast<std::size_t>(text.side)];
    if (text.fitWidth > 0) {
      svg_ += " textLength=\"" + Number(text.fitWidth) + "\" lengthAdjust=\"spacingAndGlyphs\"";
    }
    svg_ += " fill=\"" + Color(text.color) + "\">" + Escaped(text.text) + "</text>\n";
  }

  const DisplayList& list_;
  PlaneBox box_;
  double size_ = 0;   // the longer side, mm
  int decimals_ = 0;  // of coordinates
  std::string svg_;
};

}  // namespace

std::string SvgPicture(const DisplayList& list) {
  return SvgWriter(list).Write();
}

}  // namespace zwt
