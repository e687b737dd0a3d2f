#include "host/drawing/tags.h"

#include <cmath>
#include <cstring>
#include <random>

#include <gtest/gtest.h>

namespace {

using zwt::DrawingError;
using zwt::Tag;
using zwt::TagReader;

std::string ErrorOf(std::string_view bytes) {
  TagReader reader(bytes);
  Tag tag;
  try {
    while (reader.Next(tag)) {
    }
  } catch (const DrawingError& error) {
    return error.what();
  }
  return "";
}

TEST(Tags, AreReadWithAnyLineEndAndBlanksAroundTheCode) {
  TagReader reader("  0\nLINE\n\t8 \r\n L 1 \r\n -5\nx");
  Tag tag;
  ASSERT_TRUE(reader.Next(tag));
  EXPECT_EQ(tag.code, 0);
  EXPECT_EQ(tag.value, "LINE");
  ASSERT_TRUE(reader.Next(tag));
  EXPECT_EQ(tag.code, 8);
  EXPECT_EQ(tag.value, " L 1 ");
  EXPECT_EQ(reader.Line(), 5);
  ASSERT_TRUE(reader.Next(tag));
  EXPECT_EQ(tag.code, -5);
  EXPECT_EQ(tag.value, "x");
  EXPECT_FALSE(reader.Next(tag));
}

TEST(Tags, AnEmptyValueIsAValue) {
  TagReader reader("1\n\n2\n");
  Tag tag;
  ASSERT_TRUE(reader.Next(tag));
  EXPECT_EQ(tag.value, "");
  EXPECT_THROW(reader.Next(tag), DrawingError);
}

TEST(Tags, BrokenLinesAreNamedWithTheirNumber) {
  EXPECT_EQ(ErrorOf("0\nA\nx\nB\n"), "line 3: expected a group code, found \"x\"");
  EXPECT_EQ(ErrorOf("0\nA\n\nB\n"), "line 3: expected a group code, found \"\"");
  EXPECT_EQ(ErrorOf("0\nA\n12 3\nB\n"), "line 3: expected a group code, found \"12 3\"");
  EXPECT_EQ(ErrorOf("0\nA\n1234567\nB\n"), "line 3: expected a group code, found \"1234567\"");
  EXPECT_EQ(ErrorOf("0\nA\n-\nB\n"), "line 3: expected a group code, found \"-\"");
  EXPECT_EQ(ErrorOf("0\nA\n8"), "line 4: expected a value, found the end of the file");
  EXPECT_EQ(ErrorOf("\xFF\x01"
                    "abc\nA\n"),
            "line 1: expected a group code, found \"\\xFF\\x01abc\"");
}

TEST(Tags, NumbersAreReadWhole) {
  double number = -1;
  EXPECT_TRUE(zwt::ParseReal(" +1.5e3 ", number));
  EXPECT_EQ(number, 1500);
  EXPECT_TRUE(zwt::ParseReal("1e-400", number));
  EXPECT_EQ(number, 0);
  for (const char* odd : {"", "x", "1.5x", "1e999", "nan", "inf", "+-1", "0x10", "1,5"}) {
    EXPECT_FALSE(zwt::ParseReal(odd, number)) << odd;
  }
  std::uint64_t handle = 0;
  EXPECT_TRUE(zwt::ParseHandle(" 00aF", handle));
  EXPECT_EQ(handle, 0xAFU);
  EXPECT_EQ(zwt::HandleText(handle), "AF");
  for (const char* odd : {"", "0", "-1", "G", "10000000000000000"})
    EXPECT_FALSE(zwt::ParseHandle(odd, handle)) << odd;
}

TEST(Tags, WrittenNumbersReadBack) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 100000; ++i) {
    const std::uint64_t bits = random();
    double number = 0;
    static_assert(sizeof number == sizeof bits);
    std::memcpy(&number, &bits, sizeof number);
    if (!std::isfinite(number)) continue;
    double again = -1;
    ASSERT_TRUE(zwt::ParseReal(zwt::RealText(number), again)) << zwt::RealText(number);
    ASSERT_EQ(again, number);
  }
  EXPECT_EQ(zwt::RealText(-0.0), "0.0");
  EXPECT_EQ(zwt::RealText(350), "350.0");
  EXPECT_EQ(zwt::RealText(0.1), "0.1");
}

TEST(Tags, AreWrittenWithTheLineEndOfTheDrawing) {
  zwt::TagWriter writer("\r\n");
  writer.Text(0, "LINE").Point(10, 1, 2.5, -3).Handle(1005, 0xABC);
  EXPECT_EQ(writer.Bytes(), "  0\r\nLINE\r\n 10\r\n1.0\r\n 20\r\n2.5\r\n 30\r\n-3.0\r\n1005\r\nABC\r\n");
}

}  // namespace
