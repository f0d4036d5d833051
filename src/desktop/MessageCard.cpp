#include "desktop/MessageCard.h"

#include "desktop/Fonts.h"
#include "desktop/Palette.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace talvora {

namespace {

// All measures are pixels of a screen 768 high.
constexpr double ScreenHeight = 768;
constexpr double TextSize = 21;
constexpr double DetailSize = 14;
constexpr double Margin = 26;
constexpr double WidestText = 620;
constexpr double ButtonWidth = 120;

QFont fontOf(double pixels, bool bold) {
  QFont font = fontFor(FontSpec{"x1", 12, bold});
  font.setPixelSize(std::max(1, qRound(pixels)));
  return font;
}

QLabel* makeLabel(const QString& text, const QFont& font, double widest) {
  auto* const label = new QLabel(text); // NOLINT: the layout owns it
  label->setFont(font);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  const int natural = label->fontMetrics().boundingRect({}, 0, text).width();
  label->setFixedWidth(std::min(natural, qRound(widest)) + font.pixelSize());
  return label;
}

} // namespace

MessageCard::MessageCard(const QString& title, const QString& text, const QString& detail,
                         QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint), owner_(owner) {
  const bool over = owner != nullptr && owner->isVisible();
  pixel_ = (over ? owner->height() : screen()->geometry().height()) / ScreenHeight;
  setWindowTitle(title);
  QPalette colours;
  colours.setColor(QPalette::Window, Qt::white);
  colours.setColor(QPalette::WindowText, QColor(palette::BoxText));
  setPalette(colours);

  auto* const rows = new QVBoxLayout(this); // NOLINT: Qt owns it
  const int margin = qRound(Margin * pixel_);
  rows->setContentsMargins(margin, margin, margin, margin);
  rows->setSpacing(margin * 2 / 3);
  rows->addWidget(makeLabel(text, fontOf(TextSize * pixel_, true), WidestText * pixel_));
  if (!detail.isEmpty()) {
    QLabel* const small =
        makeLabel(detail, fontOf(DetailSize * pixel_, false), WidestText * pixel_);
    small->setTextInteractionFlags(Qt::TextSelectableByMouse);
    rows->addWidget(small);
  }
  buttons_ = new QHBoxLayout; // NOLINT: its parent layout owns it
  buttons_->setSpacing(margin / 2);
  buttons_->addStretch();
  rows->addLayout(buttons_);
}

QString MessageCard::buttonStyle() const {
  return QStringLiteral("QPushButton { background: #EAF2F7; color: #122E44; border: %1px solid "
                        "#7F9FB6; border-radius: %2px; padding: %3px; }"
                        "QPushButton:hover { background: #D6E8F7; }"
                        "QPushButton:focus { border: %4px solid #1F5F8B; background: #D6E8F7; }")
      .arg(std::max(1, qRound(pixel_)))
      .arg(qRound(7 * pixel_))
      .arg(qRound(6 * pixel_))
      .arg(std::max(2, qRound(2.4 * pixel_)));
}

void MessageCard::addButton(const QString& caption, int answer, IsDefault isDefault) {
  auto* const button = new QPushButton(caption); // NOLINT: the layout owns it
  button->setFont(fontOf(TextSize * 0.86 * pixel_, true));
  button->setMinimumWidth(qRound(ButtonWidth * pixel_));
  button->setStyleSheet(buttonStyle());
  button->setCursor(Qt::PointingHandCursor);
  button->setAutoDefault(true);
  QObject::connect(button, &QPushButton::clicked, this, [this, answer] { done(answer); });
  buttons_->addWidget(button);
  if (isDefault == IsDefault::No) return;
  button->setDefault(true);
  button->setFocus();
}

void MessageCard::showEvent(QShowEvent* event) {
  const QRect place =
      owner_ != nullptr && owner_->isVisible() ? owner_->geometry() : screen()->geometry();
  adjustSize();
  move(place.center() - rect().center());
  QDialog::showEvent(event);
}

void MessageCard::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int edge = std::max(2, qRound(2 * pixel_));
  painter.fillRect(rect(), QColor(palette::FocusRing));
  painter.fillRect(rect().adjusted(edge, edge, -edge, -edge), Qt::white);
}

} // namespace talvora
