#include "desktop/linux/plist/PropertyList.h"

#include <cstdlib>
#include <limits>

#include <gtest/gtest.h>
#include <plist/plist.h>

namespace wrenvale::platform {

namespace {

using std::chrono::microseconds;

constexpr auto kLowest = std::numeric_limits<std::int64_t>::min();
constexpr auto kHighest = std::numeric_limits<std::int64_t>::max();

Date dateAt(std::int64_t micros) {
  return Date(microseconds(micros));
}

Data bytes(std::string_view text) {
  Data data;
  for (const char c : text)
    data.push_back(static_cast<std::byte>(c));
  return data;
}

Value nested(int levels) {
  Value value(Value::Array{});
  for (int i = 1; i < levels; ++i)
    value = i % 2 ? Value(Value::Array{value}) : Value(Value::Dictionary{{"k", value}});
  return value;
}

Value everything() {
  Value::Array many;
  for (int i = 0; i < 300; ++i)
    many.emplace_back(i * 1000);
  return Value::Dictionary{
      {"integers", Value::Array{0, -1, 255, 256, 65536, kLowest, kHighest, 1LL << 32}},
      {"reals", Value::Array{0.1, -2.5e300, 1.0, std::numeric_limits<double>::infinity()}},
      {"booleans", Value::Array{true, false}},
      {"dates", Value::Array{dateAt(1700000000123457), dateAt(-1), dateAt(978307199999999)}},
      {"texts",
       Value::Array{"", "fourteen bytes", "fifteen bytes !", "gr\u00fc\u00df\u4f60\U0001F600"}},
      {"odd texts", Value::Array{std::string("a\0b", 3), std::string("\xff\xc3"), "\xed\xa0\x80"}},
      {"data", bytes(std::string(300, '\x80'))},
      {"", Value::Dictionary{{"empty", Value::Dictionary{}}, {"\u00e9", Value::Array{}}}},
      {"many", many}};
}

std::string inLibplistsXML(std::string_view binary) {
  plist_t node = nullptr;
  plist_from_bin(binary.data(), static_cast<std::uint32_t>(binary.size()), &node);
  if (!node) return {};
  char* text = nullptr;
  std::uint32_t size = 0;
  plist_to_xml(node, &text, &size);
  std::string xml(text, size);
  std::free(text); // each release has a function of another name for it
  plist_free(node);
  return xml;
}

// Objects of a few bytes each, put together as a list whose references have one byte.
std::string binaryList(const std::vector<std::string>& objects, std::uint8_t root = 0) {
  std::string list = "bplist00";
  std::string table;
  for (const auto& object : objects) {
    table += static_cast<char>(list.size());
    list += object;
  }
  const auto tableStart = static_cast<char>(list.size());
  list += table + std::string(6, '\0') + "\1\1" + std::string(7, '\0');
  list += static_cast<char>(objects.size());
  list += std::string(7, '\0') + static_cast<char>(root) + std::string(7, '\0') + tableStart;
  return list;
}

std::string repeated(std::string_view text, int count) {
  std::string result;
  for (int i = 0; i < count; ++i)
    result += text;
  return result;
}

std::string xml(std::string_view inner) {
  return "<plist>" + std::string(inner) + "</plist>";
}

TEST(PropertyList, keepsEveryTypeInARoundTrip) {
  const auto value = everything();
  const auto list = propertyListFromValue(value);
  ASSERT_TRUE(list);
  const auto back = valueFromPropertyList(*list);
  ASSERT_TRUE(back);
  for (std::size_t i = 0; i < value.size(); ++i)
    EXPECT_EQ(back->find(value.keyAt(i)), value.at(i)) << value.keyAt(i);
  EXPECT_TRUE(*back == value);
}

TEST(PropertyList, isUnderstoodByAnotherImplementationAndUnderstandsIt) {
  const Value value = Value::Dictionary{
      {"a & <b>", Value::Array{1, -7, kLowest, 0.25, true, false}},
      {"text", "gr\u00fc\u00df \U0001F600 \"&'"},
      {"date", dateAt(1700000000000000)},
      {"data", bytes("any\x01\xff bytes")},
      {"list", Value::Array{Value::Dictionary{{"k", ""}}, Value::Array{}, Value::Dictionary{}}}};
  const auto theirs = inLibplistsXML(*propertyListFromValue(value));
  const auto back = valueFromPropertyList(theirs);
  ASSERT_TRUE(back) << theirs;
  EXPECT_TRUE(*back == value) << theirs;
}

TEST(PropertyList, readsXML) {
  struct Row {
    std::string inner;
    std::optional<Value> expected;
  };
  const std::vector<Row> rows{
      {"<string>a&amp;&lt;&gt;&quot;&apos;&#65;&#x1F600;</string>", Value("a&<>\"'A\U0001F600")},
      {"<string> a<!-- </string> -->b<![CDATA[&<]]></string>", Value(" ab&<")},
      {"<integer> +12 </integer>", Value(12)},
      {"<integer>0xFF</integer>", Value(255)},
      {"<integer>-9223372036854775808</integer>", Value(kLowest)},
      {"<integer>18446744073709551615</integer>", Value(0x1p64)},
      {"<real>1.5e3</real>", Value(1500.0)},
      {"<true/>", Value(true)},
      {"<false></false>", Value(false)},
      {"<date>2001-02-03T04:05:06Z</date>", Value(dateAt(981173106000000))},
      {"<date>4001-01-01T00:00:00Z</date>", Value(dateAt(64092211200000000))},
      {"<data> YW\n55 </data>", Value(bytes("any"))},
      {"<data>YWI=</data>", Value(bytes("ab"))},
      {"<string/>", Value("")},
      {"<array><!-- none --><dict/></array>", Value(Value::Array{Value::Dictionary{}})},
      {"<dict a='>'><key>k</key><true/></dict >", Value(Value::Dictionary{{"k", true}})},
      {"", std::nullopt},
      {"<integer>twelve</integer>", std::nullopt},
      {"<integer></integer>", std::nullopt},
      {"<real>1,5</real>", std::nullopt},
      {"<date>2001-13-03T04:05:06Z</date>", std::nullopt},
      {"<date>2001-02-30T04:05:06Z</date>", std::nullopt},
      {"<data>Y!</data>", std::nullopt},
      {"<string>&nbsp;</string>", std::nullopt},
      {"<string>&#xD800;</string>", std::nullopt},
      {"<string>&#0;</string>", std::nullopt},
      {"<string>&amp</string>", std::nullopt},
      {"<string><true/></string>", std::nullopt},
      {"<string>a</strings>", std::nullopt},
      {"<dict><true/></dict>", std::nullopt},
      {"<dict><key>k</key></dict>", std::nullopt},
      {"<array></dict>", std::nullopt},
      {"<html></html>", std::nullopt}};
  for (const auto& [inner, expected] : rows) {
    const auto value = valueFromPropertyList(
        "\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<!DOCTYPE plist PUBLIC \"-//X\" \">\">\n" +
        xml(inner));
    EXPECT_EQ(value.has_value(), expected.has_value()) << inner;
    if (value && expected) {
      EXPECT_TRUE(*value == *expected) << inner;
    }
  }
}

TEST(PropertyList, survivesMalformedAndMaliciousLists) {
  const auto good = binaryList({"\x09"});
  ASSERT_TRUE(valueFromPropertyList(good));
  const auto changed = [&](std::size_t fromEnd, char byte) {
    auto list = good;
    list[list.size() - fromEnd] = byte;
    return list;
  };
  std::vector<std::string> doubling{std::string("\xA2\1\1", 3)}; // 2 to the 60th objects
  for (char i = 2; i < 60; ++i)
    doubling.push_back({'\xA2', i, i});
  doubling.push_back("\x09");
  const std::vector<std::pair<const char*, std::string>> rows{
      {"nothing", ""},
      {"only the magic", "bplist00"},
      {"cut off", good.substr(0, good.size() - 1)},
      {"offsets of no size", changed(26, 0)},
      {"offsets too wide", changed(26, 9)},
      {"references of no size", changed(25, 0)},
      {"more objects than offsets", changed(17, 2)},
      {"countless objects", changed(24, '\x7f')},
      {"root out of range", changed(9, 1)},
      {"table in the magic", changed(1, 0)},
      {"table behind the end", changed(1, 99)},
      {"null", binaryList({std::string(1, '\0')})},
      {"no type", binaryList({"\x70"})},
      {"array in itself", binaryList({std::string("\xA1\0", 2)})},
      {"two arrays in each other", binaryList({"\xA1\1", std::string("\xA1\0", 2)})},
      {"reference to nowhere", binaryList({"\xA1\x05"})},
      {"array longer than the file", binaryList({"\xAF\x13\xff\xff\xff\xff\xff\xff\xff\xff"})},
      {"data longer than the file", binaryList({"\x4F\x12\x7f\xff\xff\xff"})},
      {"UTF-16 longer than the file", binaryList({"\x6F\x13\x80\1\1\1\1\1\1\1\1"})},
      {"length that is no integer", binaryList({"\x5F\x23\x01"})},
      {"key that is no string", binaryList({"\xD1\1\1", "\x09"})},
      {"real of three bytes", binaryList({"\x21\1\1"})},
      {"date of four bytes", binaryList({"\x32\1\1\1\1"})},
      {"an exponential number of objects", binaryList(doubling)},
      {"a million arrays", repeated("<array>", 1000000)},
      {"a million arrays, closed in a comment", repeated("<array><!--</array>-->", 300000)},
      {"comment without end", "<plist><!-- <true/></plist>"},
      {"cut off in a tag", "<plist><dict><key"},
      {"declarations", "<!DOCTYPE plist [<!ENTITY a 'b'>]><plist><true/></plist>"},
      {"too large", xml("<string>" + std::string(kMaxPropertyListSize, 'x') + "</string>")},
      {"too many", xml("<array>" + repeated("<true/>", 1100000) + "</array>")}};
  for (const auto& [name, list] : rows)
    EXPECT_FALSE(valueFromPropertyList(list)) << name;
}

TEST(PropertyList, readsWhatOtherWritersKeep) {
  const std::string zeros(8, '\0');
  EXPECT_TRUE(valueFromPropertyList(binaryList({"\x14" + zeros + "\x80" + zeros.substr(1)})) ==
              Value(0x1p63))
      << "an unsigned integer of 64 bits";
  EXPECT_TRUE(valueFromPropertyList(binaryList({"\x81\x01\x02"})) == Value(258)) << "a reference";
  EXPECT_TRUE(valueFromPropertyList(binaryList({"\xC1\1", "\x09"})) == Value(Value::Array{true}));
  EXPECT_TRUE(valueFromPropertyList(binaryList({std::string("\x22\x3f\x80\0\0", 5)})) ==
              Value(1.0));
  EXPECT_TRUE(valueFromPropertyList(binaryList({std::string("\x61\xD8\0", 3)})) == Value("\uFFFD"));
  const auto notANumber =
      valueFromPropertyList(binaryList({"\x33\x7f\xff\xff\xff\xff\xff\xff\xff"}));
  ASSERT_TRUE(notANumber);
  EXPECT_NE(notANumber->date(), nullptr);
}

TEST(PropertyList, saysWhatItCannotHold) {
  struct Row {
    const char* name;
    Value value;
    bool fits;
  };
  const Row rows[]{{"null", {}, false},
                   {"null in an array", Value::Array{1, Value()}, false},
                   {"null in a dictionary", Value::Dictionary{{"k", Value()}}, false},
                   {"as deep as may be", nested(kMaxPropertyListNesting), true},
                   {"deeper", nested(kMaxPropertyListNesting + 1), false},
                   {"too much text", Value(std::string(kMaxPropertyListSize + 1, 'x')), false},
                   {"too many values", Value(Value::Array(kMaxPropertyListNodes, true)), false}};
  for (const auto& [name, value, fits] : rows) {
    EXPECT_EQ(isPropertyListValue(value), fits) << name;
    const auto list = propertyListFromValue(value);
    EXPECT_EQ(list.has_value(), fits) << name;
    EXPECT_EQ(list && valueFromPropertyList(*list), fits) << name;
  }
}

} // namespace

} // namespace wrenvale::platform
