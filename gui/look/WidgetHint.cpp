#include "gui/look/WidgetHint.h"

#include "gui/look/Palette.h"
#include "gui/look/Spacing.h"

#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

namespace VELIX {

WidgetHint::Message WidgetHint::withoutRecord()
{
    return {tr("No record loaded. Open the folder of a data card and choose a cycle, "
               "a flight or a file."),
            {}};
}

WidgetHint::Message WidgetHint::withoutProfile()
{
    return {tr("No parameter profile is installed. Without the profile of your engine, "
               "recorded messages cannot be turned into values."),
            tr("Install a profile")};
}

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
    layout->setContentsMargins(Spacing::kGroup, Spacing::kGroup, Spacing::kGroup, Spacing::kGroup);
    layout->addStretch(1);
    layout->addWidget(mText);
    layout->addWidget(mLink);
    layout->addStretch(1);
}

void WidgetHint::setHint(const QString& text, const QString& linkText)
{
    mText->setText(text);
    mLink->setText(QStringLiteral("<a href=\"hint\">%1</a>").arg(linkText.toHtmlEscaped()));
    mLink->setVisible(!linkText.isEmpty());
}

void WidgetHint::showInsteadOf(QWidget* content, const Message& message)
{
    setHint(message.text, message.link);
    setVisible(!message.isEmpty());
    if (content != nullptr) {
        content->setVisible(message.isEmpty());
    }
}

QString WidgetHint::hint() const
{
    return mText->text();
}

} // namespace VELIX
