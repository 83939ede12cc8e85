#include "desktop/qt/app/QtDesktop.h"

#include <string>

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

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

  Q_INVOKABLE void open(const QUrl& url) {
    opened = url.toEncoded().toStdString();
    ++count;
  }

  std::string opened;
  int count = 0;
};

TEST(QtWorkspaceTest, OpensOnlyWhatNeitherRunsNorReadsAnythingLocal) {
  const struct {
    std::string address;
    std::string opened; // empty when it is refused
  } rows[] = {
      {"http://vendor.example", "http://vendor.example"},
      {"https://vendor.example/a?b=c#d", "https://vendor.example/a?b=c#d"},
      {"HTTP://Vendor.Example/A", "http://vendor.example/A"},
      {"mailto:a@b.example", "mailto:a@b.example"},
      {"macappstore://store.example/us/app/id42?mt=12",
       "macappstore://store.example/us/app/id42?mt=12"},
      {"http://vendor.example/app_redirect/support_CH_fr-CH/com.example.größe", ""},
      {"file:///etc/passwd", ""},
      {"javascript:alert(1)", ""},
      {"data:text/html,x", ""},
      {"ftp://host/file", ""},
      {"about:blank", ""},
      {" http://vendor.example", ""},
      {"\nfile:///etc/passwd", ""},
      {"http\0://vendor.example"s, ""},
      {"http://vendor.example/\0x"s, ""},
      {"http://vendor.example/\nx", ""},
      {"http://vendor.example/a b", ""},
      {"http://vendor.example/\xFF", ""},
      {"http://vendor.example/support_US_en/com.example.<b>", ""},
      {"http://", ""},
      {"http:file:///etc/passwd", ""},
      {"//vendor.example", ""},
      {"vendor.example", ""},
      {"/etc/passwd", ""},
      {":", ""},
      {"macappstore:", ""},
      {"", ""},
  };
  Opener opener;
  for (const auto& row : rows) {
    opener.opened.clear();
    EXPECT_EQ(QtWorkspace().openURL(row.address), !row.opened.empty()) << row.address;
    EXPECT_EQ(opener.opened, row.opened) << row.address;
  }
}

TEST(QtWorkspaceTest, OpensFewAddressesAtATime) {
  Opener opener;
  QtWorkspace workspace;
  int admitted = 0;
  for (int i = 0; i < 20; ++i) {
    EXPECT_FALSE(workspace.openURL("file:///etc/passwd")); // counts as nothing
    admitted += workspace.openURL("http://vendor.example");
  }
  EXPECT_EQ(admitted, 5);
  EXPECT_EQ(opener.count, 5);
}

} // namespace
} // namespace wrenvale::platform

#include "QtWorkspaceTest.moc"
