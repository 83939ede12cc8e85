// What docs/integrate.md shows of purchases, built and run as it stands there.

#include <wrenvale/KVXWrenvale.h>
#include <wrenvale/UserDefaults.h>

namespace {

bool isLicensed() {
  return true;
}

void tellOfPurchases() {
  // clang-format off
    KVXWrenvale::sharedInstance().setPurchaseRecord([] { return isLicensed(); });
    UserDefaults::standardUserDefaults().setObject(wrenvale::Value::Array{"com.example.tool.pro"},
                                                   "Purchases");
  // clang-format on
}

} // namespace

int main() {
  tellOfPurchases();
  const auto purchases = UserDefaults::standardUserDefaults().objectForKey("Purchases");
  return purchases == wrenvale::Value::Array{"com.example.tool.pro"} ? 0 : 1;
}
