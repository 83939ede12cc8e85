#include "desktop/qt/app/QtApplication.h"

#include <string>

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

#include "platform/fake/FakeUserDefaults.h"

namespace wrenvale::platform {
namespace {

using namespace std::string_literals;

const char* const kSchemes[] = {"http",       "https", "mailto", "macappstore", "file",
                                "javascript", "data",  "ftp",    "about"};

// Takes what Qt would hand to the desktop, whatever the scheme.
class Opener : public QObject {
  Q_OBJECT
public:
  Opener() {
    for (const char* scheme : kSchemes)
      QDesktopServices::setUrlHandler(scheme, this, "open");
  }
  ~Opener() override {
    for (const char* scheme : kSchemes)
      QDesktopServices::unsetUrlHandler(scheme);
  }

  Q_INVOKABLE void open(const QUrl& url) { opened = url.toEncoded().toStdString(); }

  std::string opened;
};

TEST(QtApplicationTest, OpensOnlyWhatNeitherRunsNorReadsAnythingLocal) {
  const struct {
    std::string address;
    std::string opened; // empty when it is refused
  } rows[] = {
      {"http://vendor.example", "http://vendor.example"},
      {"HTTP://Vendor.Example/A", "http://vendor.example/A"},
      {"mailto:a@b.example", "mailto:a@b.example"},
      {"macappstore://store.example/us/app/id42?mt=12",
       "macappstore://store.example/us/app/id42?mt=12"},
      {"http://vendor.example/app_redirect/support_CH_fr-CH/com.example.größe", ""},
      {"file:///etc/passwd", ""},
      {"javascript:alert(1)", ""},
      {"about:blank", ""},
      {" http://vendor.example", ""},
      {"http://vendor.example/\0x"s, ""},
      {"http://vendor.example/support_US_en/com.example.<b>", ""},
      {"http://", ""},
      {"http:file:///etc/passwd", ""},
      {"/etc/passwd", ""},
      {"macappstore:", ""},
      {"", ""},
  };
  Opener opener;
  FakeUserDefaults defaults;
  for (const auto& row : rows) {
    opener.opened.clear();
    EXPECT_EQ(QtApplication(defaults).openURL(row.address), !row.opened.empty()) << row.address;
    EXPECT_EQ(opener.opened, row.opened) << row.address;
  }
}

TEST(OpeningLimitTest, AdmitsFiveWithinTwoSeconds) {
  const struct {
    int at; // milliseconds since an arbitrary moment; what is refused does not count
    bool admitted;
  } rows[] = {
      {0, true},     {100, true},  {200, true},  {300, true},   {400, true},  {400, false},
      {1999, false}, {2000, true}, {2100, true}, {2199, false}, {2250, true},
  };
  OpeningLimit limit;
  for (const auto& row : rows)
    EXPECT_EQ(limit.admits(OpeningLimit::Moment(std::chrono::milliseconds(row.at))), row.admitted)
        << row.at;
}

} // namespace
} // namespace wrenvale::platform

#include "QtApplicationTest.moc"
