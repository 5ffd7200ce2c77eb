#include "desktop/theme.h"

#include "desktop/ink.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace norvik::desktop {

namespace {

struct Shades {
  QColor window, base, raised, text, faint, line, highlight, onHighlight, link;
};

const Shades kLight{{"#f3f4f6"}, {"#ffffff"}, {"#fbfbfc"}, {"#1c2430"}, {"#6c7684"},
                    {"#c9ced6"}, {"#2b6cb0"}, {"#ffffff"}, {"#1f5f9f"}};
const Shades kDark{{"#24282f"}, {"#1a1d23"}, {"#2e333c"}, {"#e4e8ee"}, {"#98a2b0"},
                   {"#3d444f"}, {"#3576bd"}, {"#ffffff"}, {"#7db8f0"}};

QPalette paletteFrom(const Shades& shades) {
  QPalette palette(shades.text, shades.raised, shades.raised.lighter(108), shades.line,
                   shades.faint, shades.text, QColor("#ffffff"), shades.base, shades.window);
  palette.setColor(QPalette::Button, shades.raised);
  palette.setColor(QPalette::AlternateBase, shades.window);
  palette.setColor(QPalette::Mid, shades.line);
  palette.setColor(QPalette::Dark, shades.line.darker(115));
  palette.setColor(QPalette::Shadow, shades.line.darker(140));
  palette.setColor(QPalette::Highlight, shades.highlight);
  palette.setColor(QPalette::HighlightedText, shades.onHighlight);
  palette.setColor(QPalette::Link, shades.link);
  palette.setColor(QPalette::ToolTipBase, shades.raised);
  palette.setColor(QPalette::ToolTipText, shades.text);
  palette.setColor(QPalette::PlaceholderText, shades.faint);
  QColor disabled = shades.faint;
  disabled.setAlphaF(0.65F);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, disabled);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, shades.line);
  return palette;
}

/// Buttons with words alone: the style's own pictures belong to another visual language.
class PlainStyle : public QProxyStyle {
 public:
  PlainStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, answer);
  }

  /// An empty box to tick is dark on dark where the colours are: its edge says where it is.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool round = element == PE_IndicatorRadioButton;
    const bool square = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    const QPalette& palette = option->palette;
    const bool dark =
        palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
    if (!dark || (!round && !square)) return;
    const QRectF edge = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(palette.color(QPalette::PlaceholderText));
    painter->setBrush(Qt::NoBrush);
    if (round) {
      painter->drawEllipse(edge);
    } else {
      painter->drawRect(edge);
    }
    painter->restore();
  }
};

qreal luminance(const QColor& colour) {
  const auto part = [](float value) {
    return value <= 0.03928F ? value / 12.92F : std::pow((value + 0.055F) / 1.055F, 2.4F);
  };
  return 0.2126 * static_cast<qreal>(part(colour.redF())) +
         0.7152 * static_cast<qreal>(part(colour.greenF())) +
         0.0722 * static_cast<qreal>(part(colour.blueF()));
}

qreal contrast(const QColor& one, const QColor& other) {
  const qreal first = luminance(one);
  const qreal second = luminance(other);
  const auto [dark, light] = std::minmax(first, second);
  return (light + 0.05) / (dark + 0.05);
}

/// A colour moved towards black or white until it can be read.
QColor readable(QColor colour, const QColor& ground) {
  constexpr qreal kEnough = 4.5;
  const bool lighten = luminance(ground) < 0.2;
  for (int i = 0; i < 24 && contrast(colour, ground) < kEnough; ++i) {
    const int lightness = colour.lightness() + (lighten ? 10 : -10);
    colour.setHsl(colour.hslHue(), colour.hslSaturation(), std::clamp(lightness, 0, 255));
  }
  return colour;
}

}  // namespace

std::string_view themeName(Theme theme) {
  return theme == Theme::light ? "light" : theme == Theme::dark ? "dark" : "system";
}

Theme themeNamed(std::string_view name) {
  return name == "light" ? Theme::light : name == "dark" ? Theme::dark : Theme::system;
}

QPalette paletteOf(Theme theme, const QPalette& system) {
  const bool dark = theme == Theme::dark || (theme == Theme::system && isDark(system));
  return paletteFrom(dark ? kDark : kLight);
}

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < 128;
}

QStyle* makeStyle() {
  return new PlainStyle;
}

QColor toColor(front::Colour colour) {
  return {static_cast<int>(colour & 0xFFU), static_cast<int>(colour >> 8U & 0xFFU),
          static_cast<int>(colour >> 16U & 0xFFU)};
}

QColor accentOf(const QPalette& palette) {
  return isDark(palette) ? QColor("#f0a35e") : QColor("#c96a1b");
}

void paintText(QWidget& widget, front::Colour colour) {
  const QPalette plain = QApplication::palette();
  const QColor ground = plain.color(QPalette::Base);
  QColor ink;
  if (colour == front::kBlack || colour == front::kListNormal ||
      colour == front::kDestinationShown) {
    ink = plain.color(QPalette::Text);
  } else if (colour == front::kPathClean) {
    ink = plain.color(QPalette::Link);
  } else {
    ink = readable(toColor(colour), ground);
  }
  if (widget.property("ink").value<QColor>() == ink) return;
  widget.setProperty("ink", ink);
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Active, QPalette::Text, ink);
  palette.setColor(QPalette::Inactive, QPalette::Text, ink);
  palette.setColor(QPalette::Active, QPalette::WindowText, ink);
  palette.setColor(QPalette::Inactive, QPalette::WindowText, ink);
  widget.setPalette(palette);
}

QColor readableInk(front::Colour colour, const QPalette& palette) {
  return readable(toColor(colour), palette.color(QPalette::Base));
}

}  // namespace norvik::desktop
