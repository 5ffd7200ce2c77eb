#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

namespace norvik::desktop {

/// Takes the addresses that would go to the desktop's own programs.
class AddressCatcher : public QObject {
  Q_OBJECT
 public:
  AddressCatcher();
  AddressCatcher(const AddressCatcher&) = delete;
  AddressCatcher& operator=(const AddressCatcher&) = delete;
  ~AddressCatcher() override;

  QList<QUrl> taken;

 public slots:
  void take(const QUrl& address);
};

}  // namespace norvik::desktop
