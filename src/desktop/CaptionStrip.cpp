#include "desktop/CaptionStrip.h"

#include "desktop/Fonts.h"
#include "desktop/Palette.h"
#include "desktop/StripButton.h"

#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace talvora {

namespace {

// The program pads its title with blanks to bring it to the middle of the strip.
constexpr int FewestPadding = 20;
constexpr int NewsMs = 2000;
constexpr double TextPart = 0.72; ///< of the strip's height
constexpr int MarkParts = 8; ///< the mark behind a typed word is such a part of its letters wide

/// A caption in the two pieces that its padding parts; without padding all is the title.
struct CaptionPieces {
  QString typed;
  QString title;
};

CaptionPieces piecesOf(const QString& caption) {
  const auto padding = caption.indexOf(QString(FewestPadding, QLatin1Char(' ')));
  if (padding < 0) return {{}, caption.simplified()};
  return {caption.left(padding), caption.mid(padding).simplified()};
}

} // namespace

CaptionStrip::CaptionStrip(QWidget* parent)
    : QWidget(parent), typed_(makeText(palette::StripAmber)),
      notice_(makeText(palette::StripAmber)), title_(makeText(palette::StripText)),
      back_(makeButton(StripSign::None, {}, goBack)),
      hint_(makeButton(StripSign::None, QStringLiteral("Gợi ý về chuột và phím, F2"), showHint)),
      minimise_(makeButton(StripSign::Minimise, QStringLiteral("Thu nhỏ cửa sổ"), minimiseWindow)),
      close_(makeButton(StripSign::Close, QStringLiteral("Đóng chương trình"), closeWindow)) {
  setFocusPolicy(Qt::NoFocus);
  setAccessibleName(QStringLiteral("Talvora"));
  hint_->setText(QStringLiteral("Gợi ý (F2)"));
  title_->setAlignment(Qt::AlignCenter);
  for (QTimer* timer : {&emphasis_, &noticeEnd_}) {
    timer->setSingleShot(true);
    timer->setInterval(NewsMs);
  }
  QObject::connect(&emphasis_, &QTimer::timeout, this, [this] { emphasise(false); });
  QObject::connect(&noticeEnd_, &QTimer::timeout, this, [this] {
    notice_->setText(help_);
    arrange();
  });
  setPlace(StripPlace::Menu);
}

StripButton* CaptionStrip::makeButton(StripSign sign, const QString& name,
                                      std::function<void()>& deed) {
  auto* const button = new StripButton(sign, name, this); // NOLINT: Qt owns it
  QObject::connect(button, &QAbstractButton::clicked, this, [&deed] { deed(); });
  return button;
}

QLabel* CaptionStrip::makeText(QRgb colour) {
  auto* const label = new QLabel(this); // NOLINT: Qt owns it
  label->setTextFormat(Qt::PlainText);
  QPalette colours;
  colours.setColor(QPalette::WindowText, QColor(colour));
  label->setPalette(colours);
  return label;
}

void CaptionStrip::setPlace(StripPlace place) {
  const bool menu = place == StripPlace::Menu;
  back_->setText(menu ? QStringLiteral("Thoát (Esc)") : QStringLiteral("‹ Quay lại (Esc)"));
  back_->setAccessibleName(menu ? QStringLiteral("Thoát chương trình, Esc")
                                : QStringLiteral("Quay lại, Esc"));
  hint_->setVisible(!menu);
  arrange();
}

void CaptionStrip::setCaption(const QString& caption) {
  const CaptionPieces pieces = piecesOf(caption);
  typed_->setText(pieces.typed);
  typed_->setAccessibleName(pieces.typed);
  setTitle(pieces.title);
  arrange();
}

void CaptionStrip::setTitle(const QString& title) {
  const QString before = title_->text();
  if (title == before) return;
  title_->setText(title);
  if (firstTitle_.isEmpty()) {
    firstTitle_ = title;
    return;
  }
  const bool news = title != firstTitle_;
  // A score that the next item's number replaces at once is still to be read.
  if (news && emphasis_.isActive() && before != firstTitle_) notice(before);
  emphasise(news);
  if (!news) return;
  emphasis_.start();
  told(title);
}

void CaptionStrip::notice(const QString& text) {
  notice_->setText(text);
  noticeEnd_.start();
  arrange();
  told(text);
}

void CaptionStrip::setHelp(const QString& text) {
  if (std::exchange(help_, text) == text || noticeEnd_.isActive()) return;
  notice_->setText(help_);
  arrange();
}

void CaptionStrip::setHintTip(const QString& text) {
  hint_->setToolTip(text);
}

void CaptionStrip::emphasise(bool emphasised) {
  QPalette colours = title_->palette();
  colours.setColor(QPalette::WindowText,
                   QColor(emphasised ? palette::StripAmber : palette::StripText));
  title_->setPalette(colours);
  if (!emphasised) emphasis_.stop();
}

QFont CaptionStrip::textFont(bool bold) const {
  QFont font = fontFor(FontSpec{"x1", 10, bold});
  font.setPixelSize(qMax(qRound(height() * TextPart), 1));
  return font;
}

void CaptionStrip::resizeEvent(QResizeEvent*) {
  arrange();
}

void CaptionStrip::arrange() {
  // Ahead of its first place every letter would be measured at a size that is never seen.
  if (!testAttribute(Qt::WA_Resized) || height() <= 0) return;
  int right = width();
  for (StripButton* button : {close_, minimise_, hint_, back_}) {
    button->setFont(textFont(false));
    if (button->isHidden()) continue;
    const int wide = button->widthIn(height());
    right -= wide;
    button->setGeometry(right, 0, wide, height());
  }
  // A typed word goes before a notice.
  const bool typing = !typed_->text().isEmpty();
  typed_->setVisible(typing);
  notice_->setVisible(!typing && !notice_->text().isEmpty());
  const int margin = height() / 2;
  int left = margin;
  for (QLabel* label : {typed_, notice_}) {
    label->setFont(textFont(true));
    if (label->isHidden()) continue;
    const int wide = label->fontMetrics().horizontalAdvance(label->text()) + margin;
    label->setGeometry(left, 0, qMin(wide, right - left), height());
    left += wide;
  }
  title_->setFont(textFont(true));
  const int wide = title_->fontMetrics().horizontalAdvance(title_->text()) + margin;
  const int middle = (width() - wide) / 2;
  title_->setGeometry(qMax(left, qMin(middle, right - wide)), 0, wide, height());
}

void CaptionStrip::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), QColor(palette::Strip));
  if (typed_->isVisible()) painter.fillRect(typingMark(), QColor(palette::StripAmber));
}

// A rectangle and no letter: our faces have none for it, and to look through every font of the
// machine takes long.
QRect CaptionStrip::typingMark() const {
  const QFontMetrics letters = typed_->fontMetrics();
  QRect mark(0, 0, qMax(typed_->font().pixelSize() / MarkParts, 1), letters.height());
  mark.moveCenter(typed_->geometry().center());
  mark.moveLeft(typed_->x() + letters.horizontalAdvance(typed_->text()));
  return mark;
}

} // namespace talvora
