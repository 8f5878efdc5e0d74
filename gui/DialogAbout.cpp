#include "gui/DialogAbout.h"

#include "core/Revision.h"
#include "gui/ImageHandler.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>

namespace VELIX {

namespace {

constexpr int kMinimumWidth = 420;
constexpr int kPictureSize = 64;
constexpr int kGroupGap = 16;

} // namespace

DialogAbout::DialogAbout(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("About VELIX"));
    setMinimumWidth(kMinimumWidth);
    auto* picture = new QLabel(this);
    picture->setPixmap(ImageHandler::instance().icon(QStringLiteral("velix")).pixmap(kPictureSize));

    auto* text = new QLabel(this);
    text->setTextFormat(Qt::RichText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setWordWrap(true);
    text->setText(
        QStringLiteral("<p><b>%1</b><br>%2</p><p>%3<br>%4</p>")
            .arg(QString::fromStdString(Revision::getRevisionString()),
                 tr("Debriefing of engine data cards"),
                 tr("Built %1").arg(QString::fromStdString(Revision::compileTime())),
                 tr("Made with Qt %1, under the GNU Lesser General Public License, version 3")
                     .arg(QString::fromLatin1(qVersion()))));

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &DialogAbout::reject);
    auto* layout = new QGridLayout(this);
    layout->setHorizontalSpacing(kGroupGap);
    layout->addWidget(picture, 0, 0, Qt::AlignTop);
    layout->addWidget(text, 0, 1);
    layout->addWidget(buttons, 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
}

} // namespace VELIX
