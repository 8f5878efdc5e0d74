#include "gui/WidgetHint.h"

#include "gui/Palette.h"

#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

namespace VELIX {

namespace {

constexpr int Margin = 16;

} // namespace

WidgetHint::WidgetHint(QWidget* parent)
    : QWidget(parent), mText(new QLabel(this)), mLink(new QLabel(this))
{
    mText->setTextFormat(Qt::PlainText);
    mText->setWordWrap(true);
    mText->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    mText->setProperty("role", QStringLiteral("muted")); // the style sheet colours it
    mLink->setTextFormat(Qt::RichText);
    mLink->setWordWrap(true);
    mLink->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    mLink->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    mLink->hide();
    connect(mLink, &QLabel::linkActivated, this, &WidgetHint::signalLink);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addStretch(1);
    layout->addWidget(mText);
    layout->addWidget(mLink);
    layout->addStretch(1);
}

WidgetHint::WidgetHint(const QString& text, QWidget* parent) : WidgetHint(parent)
{
    setHint(text);
}

void WidgetHint::setHint(const QString& text, const QString& linkText)
{
    mText->setText(text);
    mLink->setText(QStringLiteral("<a href=\"hint\">%1</a>").arg(linkText.toHtmlEscaped()));
    mLink->setVisible(!linkText.isEmpty());
}

QString WidgetHint::hint() const
{
    return mText->text();
}

} // namespace VELIX
