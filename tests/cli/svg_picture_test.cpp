// Pictures of drawings as SVG, to the letter.
#include "cli/svg_picture.h"

#include <gtest/gtest.h>

#include "host_drawing/seen.h"

namespace zwt {
namespace {

std::string Svg(std::string_view entities, std::string_view tables = {}) {
  return SvgPicture(MakeDisplayList(*test::DrawingOf(entities, "", tables)));
}

/// The lines of the picture that begin so.
std::string LinesWith(const std::string& svg, std::string_view begin) {
  std::string lines;
  for (std::size_t at = 0; at < svg.size();) {
    const std::size_t end = svg.find('\n', at) + 1;
    if (svg.compare(at, begin.size(), begin) == 0) lines += svg.substr(at, end - at);
    at = end;
  }
  return lines;
}

constexpr std::string_view kLayers =
    "0 TABLE|2 LAYER|0 LAYER|2 0|62 7|0 LAYER|2 给水|62 3|0 LAYER|2 消防|62 1|0 LAYER|2 隐藏|62 -5|0 ENDTAB";

TEST(SvgPicture, AWholePicture) {
  EXPECT_EQ(
      Svg("0 LINE|8 给水|10 0|20 0|11 96|21 48|0 TEXT|8 0|10 0|20 10|40 7.33|1 DN<25>", kLayers),
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1600\" height=\"831\" viewBox=\"0 0 99.84 51.84\">\n"
      "<rect width=\"99.84\" height=\"51.84\" fill=\"#ffffff\"/>\n"
      "<g fill=\"none\" stroke-linecap=\"round\" stroke-linejoin=\"round\" stroke-width=\"0.0998\">\n"
      "<path stroke=\"#00ff00\" d=\"M1.92 49.92L97.92 1.92\"/>\n"
      "</g>\n"
      "<g xml:space=\"preserve\" font-family=\"'Noto Sans CJK SC','Source Han Sans SC','Microsoft YaHei',"
      "'PingFang SC','SimHei','SimSun',sans-serif\">\n"
      "<text transform=\"translate(1.92 39.92)\" font-size=\"10\" fill=\"#000000\">DN&lt;25&gt;</text>\n"
      "</g>\n"
      "</svg>\n");
}

TEST(SvgPicture, AnEmptyDrawingIsAnEmptyPicture) {
  const std::string svg = Svg("0 LINE|8 隐藏|10 0|20 0|11 96|21 48", kLayers);
  EXPECT_EQ(
      LinesWith(svg, "<svg"),
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1600\" height=\"1600\" viewBox=\"0 0 2 2\">\n");
  EXPECT_EQ(LinesWith(svg, "<path"), "");
}

/// A frame that makes the picture 104 by 104 with its corner at -2, 102.
constexpr std::string_view kFrame =
    "0 LWPOLYLINE|8 0|90 4|70 1|10 0|20 0|10 100|20 0|10 100|20 100|10 0|20 100|";

TEST(SvgPicture, NeighboursOfOneColourAreOnePath) {
  const std::string svg = Svg(std::string(kFrame) +
                                  "0 LINE|8 0|10 10|20 10|11 20|21 20|"
                                  "0 LINE|8 消防|10 30|20 0|11 30|21 50|0 LINE|8 0|10 0|20 0|11 1|21 1",
                              kLayers);
  EXPECT_EQ(LinesWith(svg, "<path"),
            "<path stroke=\"#000000\" d=\"M2 102L102 102L102 2L2 2ZM12 92L22 82\"/>\n"
            "<path stroke=\"#ff0000\" d=\"M32 102L32 52\"/>\n"
            "<path stroke=\"#000000\" d=\"M2 102L3 101\"/>\n");
}

TEST(SvgPicture, AreasAndPointsAreFilled) {
  const std::string svg =
      Svg(std::string(kFrame) +
              "0 SOLID|8 消防|10 0|20 0|11 50|21 0|12 0|22 50|13 50|23 50|0 POINT|8 给水|10 8|20 8",
          kLayers);
  EXPECT_EQ(LinesWith(svg, "<path fill"), "<path fill=\"#ff0000\" d=\"M2 102L52 102L52 52L2 52Z\"/>\n");
  EXPECT_EQ(LinesWith(svg, "<path stroke=\"#00ff00\""),
            "<path stroke=\"#00ff00\" stroke-width=\"0.208\" d=\"M10 94h0\"/>\n");
}

std::string TextElement(std::string_view text) {
  return LinesWith(Svg(std::string(kFrame) + "0 TEXT|8 0|" + std::string(text)), "<text");
}

TEST(SvgPicture, TextsStandAsTheirAlignmentSays) {
  EXPECT_EQ(TextElement("10 0|20 0|11 50|21 50|40 7.33|72 1|73 1|1 A"),
            "<text transform=\"translate(52 52)\" y=\"-2.199\" font-size=\"10\" text-anchor=\"middle\" "
            "fill=\"#000000\">A</text>\n");
  EXPECT_EQ(TextElement("10 0|20 0|11 50|21 50|40 7.33|72 2|73 3|1 A"),
            "<text transform=\"translate(52 52)\" y=\"7.33\" font-size=\"10\" text-anchor=\"end\" "
            "fill=\"#000000\">A</text>\n");
  EXPECT_EQ(TextElement("10 0|20 0|11 50|21 50|40 7.33|73 2|1 A"),
            "<text transform=\"translate(52 52)\" y=\"3.665\" font-size=\"10\" fill=\"#000000\">A</text>\n");
}

TEST(SvgPicture, TextsAreTurnedSlantedAndStretched) {
  EXPECT_EQ(TextElement("10 50|20 50|40 7.33|50 30|41 0.7|51 15|1 A"),
            "<text transform=\"translate(52 52) rotate(-30) skewX(-15) scale(0.7 1)\" font-size=\"10\" "
            "fill=\"#000000\">A</text>\n");
  EXPECT_EQ(TextElement("10 50|20 50|11 80|21 50|40 7.33|41 0.7|72 5|1 A"),
            "<text transform=\"translate(52 52)\" font-size=\"10\" textLength=\"30\" "
            "lengthAdjust=\"spacingAndGlyphs\" fill=\"#000000\">A</text>\n");
}

TEST(SvgPicture, TextsHoldWhatXmlAllows) {
  EXPECT_EQ(TextElement("10 10|20 10|40 3.665|1 a&b<c> \"给水\" \\U+0007\\U+FFFF%%c"),
            "<text transform=\"translate(12 92)\" font-size=\"5\" fill=\"#000000\">a&amp;b&lt;c&gt; \"给水\" "
            " \xEF\xBF\xBD∅</text>\n");
}

TEST(SvgPicture, FarFromTheOriginNothingIsLost) {
  const std::string svg = Svg("0 LINE|8 0|10 1000000000|20 2000000000|11 1000000100.5|21 2000000050.25");
  EXPECT_EQ(LinesWith(svg, "<path"), "<path stroke=\"#000000\" d=\"M2.01 52.26L102.51 2.01\"/>\n");
}

TEST(SvgPicture, WhiteOnWhiteIsBlack) {
  EXPECT_NE(Svg("0 LINE|8 0|62 255|10 0|20 0|11 1|21 1").find("stroke=\"#000000\""), std::string::npos);
}

}  // namespace
}  // namespace zwt
