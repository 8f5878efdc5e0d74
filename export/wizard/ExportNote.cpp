#include "export/wizard/ExportNote.h"

#include "gui/look/ImageHandler.h"

#include <QHBoxLayout>
#include <QLabel>

namespace VELIX {

namespace {

constexpr int kIconSize = 16;
constexpr int kGap = 8;

} // namespace

ExportNote::ExportNote(QWidget* parent) : QWidget(parent), mText(new QLabel(this))
{
    auto* icon = new QLabel(this);
    icon->setPixmap(ImageHandler::instance().icon(QStringLiteral("warning")).pixmap(kIconSize));
    mText->setTextFormat(Qt::PlainText);
    mText->setWordWrap(true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    layout->addWidget(icon, 0, Qt::AlignTop);
    layout->addWidget(mText, 1);
    hide();
}

void ExportNote::setNote(const QString& sentence)
{
    mText->setText(sentence);
    setVisible(!sentence.isEmpty());
}

QString ExportNote::note() const
{
    return mText->text();
}

} // namespace VELIX
