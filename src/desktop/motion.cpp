#include "desktop/motion.h"

#include <QProcess>
#include <QSettings>
#include <QStandardPaths>

namespace norvik::desktop {

namespace {

QString configFile(const QString& name) {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QLatin1Char('/') + name;
}

bool isOff(const QVariant& value) {
  const QString text = value.toString().trimmed().toLower();
  return text == QLatin1String("0") || text == QLatin1String("false");
}

bool offInGtk(const QString& version) {
  const QSettings settings(configFile(version + QStringLiteral("/settings.ini")),
                           QSettings::IniFormat);
  return isOff(settings.value(QStringLiteral("Settings/gtk-enable-animations")));
}

bool offInGnome() {
  constexpr int kPatience = 500;  // milliseconds
  const QString tool = QStandardPaths::findExecutable(QStringLiteral("gsettings"));
  if (tool.isEmpty()) return false;
  QProcess question;
  question.start(tool, {QStringLiteral("get"), QStringLiteral("org.gnome.desktop.interface"),
                        QStringLiteral("enable-animations")});
  return question.waitForFinished(kPatience) && isOff(question.readAllStandardOutput());
}

bool offInKde() {
  const QSettings settings(configFile(QStringLiteral("kdeglobals")), QSettings::IniFormat);
  const QVariant factor = settings.value(QStringLiteral("KDE/AnimationDurationFactor"));
  return factor.isValid() && factor.toDouble() == 0;
}

}  // namespace

bool systemReducesMotion() {
  return offInKde() || offInGtk(QStringLiteral("gtk-3.0")) || offInGtk(QStringLiteral("gtk-4.0")) ||
         offInGnome();
}

}  // namespace norvik::desktop
