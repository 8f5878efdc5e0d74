#include "gui/help/DialogAbout.h"

#include "core/Revision.h"
#include "gui/help/Licences.h"
#include "gui/look/CopyFilter.h"
#include "gui/look/ImageHandler.h"
#include "gui/look/Spacing.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>

namespace VELIX {

namespace {

constexpr int kImageSize = 64;
constexpr int kTextColumns = 82; ///< licences come in lines of 80
constexpr int kTextRows = 24;

/// The compiler writes the date of the build in English.
QString buildDate()
{
    const QString text = QString::fromStdString(Revision::compileTime()).simplified();
    const QDateTime date = QLocale::c().toDateTime(text, QStringLiteral("MMM d yyyy hh:mm:ss"));
    return date.isValid() ? QLocale().toString(date.date(), QLocale::LongFormat) : text;
}

} // namespace

DialogAbout::DialogAbout(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("About VELIX"));
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* close = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &DialogAbout::reject);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(Spacing::kGroup);
    layout->addWidget(createHeading());
    layout->addWidget(createLicences(), 1);
    layout->addWidget(buttons);
    mList->setCurrentRow(0);
    mList->setFocus();
}

QWidget* DialogAbout::createHeading()
{
    auto* heading = new QWidget(this);
    auto* image = new QLabel(heading);
    image->setPixmap(ImageHandler::instance().icon(QStringLiteral("velix")).pixmap(kImageSize));
    auto* text = new QLabel(heading);
    text->setTextFormat(Qt::RichText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setFocusPolicy(Qt::ClickFocus);
    text->setText(QStringLiteral("<b>%1</b><br>%2<br>%3")
                      .arg(QString::fromStdString(Revision::getRevisionString()),
                           tr("Debriefing of engine data cards"), tr("Built %1").arg(buildDate())));
    auto* layout = new QHBoxLayout(heading);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing::kGroup);
    layout->addWidget(image);
    layout->addWidget(text, 1);
    return heading;
}

QWidget* DialogAbout::createLicences()
{
    auto* pane = new QWidget(this);
    mList = new QListWidget(pane);
    mList->setSpacing(Spacing::kGap / 2); // between entries of two lines
    for (const Licences::Entry& entry : Licences::entries()) {
        mList->addItem(entry.licence.isEmpty()
                           ? entry.name
                           : QStringLiteral("%1\n%2").arg(entry.name, entry.licence));
    }
    CopyFilter::install(mList);
    auto* title = new QLabel(tr("&Licences"), pane);
    title->setBuddy(mList);

    mText = new QPlainTextEdit(pane);
    mText->setReadOnly(true);
    mText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    mText->setAccessibleName(tr("Text of the licence"));
    mText->setTabChangesFocus(true);
    // By style sheet, since the program's rule for fonts overrides those that are set.
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    mText->setStyleSheet(
        QStringLiteral("QPlainTextEdit {font-family: \"%1\";}").arg(fixed.family()));
    CopyFilter::install(mText);
    connect(mList, &QListWidget::currentRowChanged, this, &DialogAbout::showLicence);

    auto* layout = new QGridLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing::kMargin);
    layout->addWidget(title, 0, 0);
    layout->addWidget(mList, 1, 0);
    layout->addWidget(mText, 1, 1);
    layout->setColumnStretch(1, 1);
    return pane;
}

/// The size of the text is a preference, which may have changed since the last time.
void DialogAbout::showEvent(QShowEvent* event)
{
    mList->setFixedWidth(mList->sizeHintForColumn(0) + 2 * Spacing::kGroup);
    mText->ensurePolished();
    const QFontMetrics metrics(mText->font());
    mText->setMinimumSize(metrics.horizontalAdvance(QLatin1Char('0')) * kTextColumns,
                          metrics.lineSpacing() * kTextRows);
    QDialog::showEvent(event);
}

void DialogAbout::showLicence(int row)
{
    const std::vector<Licences::Entry> entries = Licences::entries();
    if (row >= 0 && static_cast<std::size_t>(row) < entries.size()) {
        mText->setPlainText(Licences::text(entries[static_cast<std::size_t>(row)]));
    }
}

} // namespace VELIX
