#include "desktop/address_catcher.h"

#include <QDesktopServices>

namespace norvik::desktop {

namespace {

constexpr const char* kSchemes[] = {"http", "file"};

}  // namespace

AddressCatcher::AddressCatcher() {
  for (const char* scheme : kSchemes) {
    QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "take");
  }
}

AddressCatcher::~AddressCatcher() {
  for (const char* scheme : kSchemes) {
    QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
  }
}

void AddressCatcher::take(const QUrl& address) {
  taken << address;
}

}  // namespace norvik::desktop
