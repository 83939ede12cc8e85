#include "desktop/linux/plist/PropertyList.h"

#include <cstdlib>
#include <limits>

#include <gtest/gtest.h>
#include <plist/plist.h>

namespace wrenvale::platform {

namespace {

constexpr auto kLowest = std::numeric_limits<std::int64_t>::min();
constexpr auto kHighest = std::numeric_limits<std::int64_t>::max();

Date dateAt(std::int64_t micros) {
  return Date(std::chrono::microseconds(micros));
}

Data bytes(std::string_view text) {
  const auto* begin = reinterpret_cast<const std::byte*>(text.data());
  return {begin, begin + text.size()};
}

Value nested(int levels) {
  Value value(Value::Array{});
  for (int i = 1; i < levels; ++i)
    value = i % 2 ? Value(Value::Array{value}) : Value(Value::Dictionary{{"k", value}});
  return value;
}

std::string inLibplistsXML(const std::string& binary) {
  plist_t node = nullptr;
  plist_from_bin(binary.data(), static_cast<std::uint32_t>(binary.size()), &node);
  char* text = nullptr;
  std::uint32_t size = 0;
  plist_to_xml(node, &text, &size);
  std::string xml(text, size);
  std::free(text); // each release has a function of another name for it
  plist_free(node);
  return xml;
}

// Objects of a few bytes each, put together as a list whose references have one byte.
std::string binaryList(const std::vector<std::string>& objects) {
  std::string list = "bplist00";
  std::string table;
  for (const auto& object : objects) {
    table += static_cast<char>(list.size());
    list += object;
  }
  const auto tableStart = static_cast<char>(list.size());
  list += table + std::string(6, '\0') + "\1\1" + std::string(7, '\0');
  list += static_cast<char>(objects.size());
  return list + std::string(15, '\0') + tableStart;
}

std::string repeated(std::string_view text, int count) {
  std::string result;
  for (int i = 0; i < count; ++i)
    result += text;
  return result;
}

std::string xml(std::string_view inner) {
  return "\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<!DOCTYPE plist PUBLIC \"-//X\" \">\">\n<plist>" +
         std::string(inner) + "</plist>";
}

TEST(PropertyList, keepsEveryTypeHereAndInAnotherImplementation) {
  Value::Array many; // more than a byte counts
  for (int i = 0; i < 300; ++i)
    many.emplace_back(i * 1000);
  Value::Dictionary items{
      {"a & <b>", Value::Array{0, -1, 255, 256, kLowest, kHighest, 0.25, true, false}},
      {"text", Value::Array{"", "gr\u00fc\u00df \U0001F600 \"&'", "fifteen bytes !"}},
      {"date", dateAt(1700000000000000)},
      {"data", bytes(std::string(300, '\x80'))},
      {"", Value::Array{Value::Dictionary{{"k", ""}}, Value::Array{}, Value::Dictionary{}}},
      {"many", many}};
  const auto theirs = inLibplistsXML(propertyListFromValue(items).value());
  EXPECT_EQ(valueFromPropertyList(theirs), Value(items)) << theirs;

  const auto inf = std::numeric_limits<double>::infinity();
  items["ours"] = Value::Array{-2.5e300, inf, dateAt(1700000000123457), dateAt(-1)};
  items["no text"] = Value::Array{std::string("a\0b", 3), "\xff\xc3", "\xed\xa0\x80"};
  EXPECT_EQ(valueFromPropertyList(propertyListFromValue(items).value()), Value(items));
}

TEST(PropertyList, readsWhatOtherWritersKeep) {
  const std::pair<const char*, Value> rows[]{
      {"<string>a&amp;&lt;&gt;&quot;&apos;&#65;&#x1F600;</string>", "a&<>\"'A\U0001F600"},
      {"<string> a<!-- </string> -->b<![CDATA[&<]]></string>", " ab&<"},
      {"<integer> +12 </integer>", 12},
      {"<integer>0xFF</integer>", 255},
      {"<integer>-9223372036854775808</integer>", kLowest},
      {"<integer>18446744073709551615</integer>", 0x1p64},
      {"<real>1.5e3</real>", 1500.0},
      {"<false></false>", false},
      {"<date>2001-02-03T04:05:06Z</date>", dateAt(981173106000000)},
      {"<data> YW\n55 </data>", bytes("any")},
      {"<data>YWI=</data>", bytes("ab")},
      {"<array><!-- none --><dict/></array>", Value::Array{Value::Dictionary{}}},
      {"<dict a='>'><key>k</key><string/></dict >", Value::Dictionary{{"k", ""}}}};
  for (const auto& [inner, expected] : rows)
    EXPECT_EQ(valueFromPropertyList(xml(inner)), expected) << inner;

  const auto read = [](const std::vector<std::string>& objects) {
    return valueFromPropertyList(binaryList(objects));
  };
  EXPECT_EQ(read({std::string("\x14\0\0\0\0\0\0\0\0\x80\0\0\0\0\0\0\0", 17)}), Value(0x1p63));
  EXPECT_EQ(read({"\x81\x01\x02"}), Value(258)) << "a reference";
  EXPECT_EQ(read({"\xC1\1", "\x09"}), Value(Value::Array{true})) << "a set";
  EXPECT_EQ(read({std::string("\x22\x3f\x80\0\0", 5)}), Value(1.0));
  EXPECT_EQ(read({std::string("\x61\xD8\0", 3)}), Value("\uFFFD"));
  const auto notANumber = read({"\x33\x7f\xff\xff\xff\xff\xff\xff\xff"});
  EXPECT_TRUE(notANumber && notANumber->date());
}

TEST(PropertyList, survivesMalformedAndMaliciousLists) {
  for (const auto* inner :
       {"", "<integer>twelve</integer>", "<date>2001-02-30T04:05:06Z</date>",
        "<date>2001-02-03 04:05:06Z</date>", "<data>Y!</data>", "<string>&#xD800;</string>",
        "<string>&#0;</string>", "<string>&amp</string>", "<string><true/></string>",
        "<string>a</strings>", "<dict><true/></dict>", "<dict><key>k</key></dict>",
        "<array></dict>"})
    EXPECT_FALSE(valueFromPropertyList(xml(inner))) << inner;

  const auto good = binaryList({"\x09"});
  ASSERT_TRUE(valueFromPropertyList(good));
  const auto changed = [&](std::size_t fromEnd, char byte) {
    return std::string(good).replace(good.size() - fromEnd, 1, 1, byte);
  };
  std::vector<std::string> doubling{std::string("\xA2\1\1", 3)}; // 2 to the 60th objects
  for (char i = 2; i < 60; ++i)
    doubling.push_back({'\xA2', i, i});
  doubling.push_back("\x09");
  const std::pair<const char*, std::string> rows[]{
      {"only the magic", "bplist00"},
      {"offsets of no size", changed(26, 0)},
      {"references of no size", changed(25, 0)},
      {"more objects than offsets", changed(17, 2)},
      {"countless objects", changed(24, '\x7f')},
      {"root out of range", changed(9, 1)},
      {"table behind the end", changed(2, 1)},
      {"two arrays in each other", binaryList({"\xA1\1", std::string("\xA1\0", 2)})},
      {"reference to nowhere", binaryList({"\xA1\x05"})},
      {"array longer than the file", binaryList({"\xAF\x13\xff\xff\xff\xff\xff\xff\xff\xff"})},
      {"UTF-16 longer than the file", binaryList({"\x6F\x13\x80\1\1\1\1\1\1\1\1"})},
      {"length that is no integer", binaryList({"\x5F\x23\x01"})},
      {"key that is no string", binaryList({"\xD1\1\1", "\x09"})},
      {"real of three bytes", binaryList({"\x21\1\1"})},
      {"date of four bytes", binaryList({"\x32\1\1\1\1"})},
      {"an exponential number of objects", binaryList(doubling)},
      {"a million arrays", repeated("<array>", 1000000)},
      {"dictionaries in each other", repeated("<dict><key/>", 300000)},
      {"a million arrays, closed in a comment", repeated("<array><!--</array>-->", 300000)},
      {"comment without end", "<plist><!-- <true/></plist>"},
      {"cut off", "<plist><true/>"},
      {"declarations", "<!DOCTYPE plist [<!ENTITY a 'b'>]><plist><true/></plist>"},
      {"too large", xml("<string>" + std::string(kMaxPropertyListSize, 'x') + "</string>")},
      {"too many", xml("<array>" + repeated("<true/>", 1100000) + "</array>")}};
  for (const auto& [name, list] : rows)
    EXPECT_FALSE(valueFromPropertyList(list)) << name;
}

TEST(PropertyList, saysWhatItCannotHold) {
  const std::pair<Value, bool> rows[]{{Value::Array{1, Value()}, false},
                                      {Value::Dictionary{{"k", Value()}}, false},
                                      {nested(kMaxPropertyListNesting), true},
                                      {nested(kMaxPropertyListNesting + 1), false},
                                      {std::string(kMaxPropertyListSize + 1, 'x'), false},
                                      {Value::Array(kMaxPropertyListNodes, true), false}};
  for (const auto& [value, fits] : rows) {
    EXPECT_EQ(isPropertyListValue(value), fits) << value.size();
    const auto list = propertyListFromValue(value);
    EXPECT_EQ(list && valueFromPropertyList(*list), fits) << value.size();
  }
}

} // namespace

} // namespace wrenvale::platform
