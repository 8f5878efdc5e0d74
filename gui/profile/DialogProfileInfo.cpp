#include "gui/profile/DialogProfileInfo.h"

#include "gui/dialogs/DialogService.h"
#include "gui/profile/ProfileInstaller.h"
#include "gui/profile/ProfileSettings.h"
#include "profile/Profile.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr int kMinimumWidth = 420;
const QString kInstallLink = QStringLiteral("Install");

} // namespace

DialogProfileInfo::DialogProfileInfo(Profile& profile, ProfileSettings& settings,
                                     DialogService& dialogs, QWidget* parent)
    : QDialog(parent),
      mProfile(profile),
      mSettings(settings),
      mDialogs(dialogs),
      mInfo(new QLabel(this))
{
    setWindowTitle(tr("VELIX Profile Info"));
    setMinimumWidth(kMinimumWidth);
    mInfo->setTextFormat(Qt::RichText);
    mInfo->setWordWrap(true);
    mInfo->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    mInfo->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* link = new QLabel(
        QStringLiteral("<a href=\"%1\">%2</a>").arg(kInstallLink, tr("Install New Profile")), this);
    link->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(link, &QLabel::linkActivated, this, &DialogProfileInfo::slotLink);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* close = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &DialogProfileInfo::slotClose);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(mInfo, 1);
    layout->addWidget(link);
    layout->addWidget(buttons);
}

void DialogProfileInfo::fillProfileInfo()
{
    const ProfileInfo& info = mProfile.data();
    const auto row = [](const QString& text, const QString& value) {
        return text.arg(value.toHtmlEscaped());
    };
    QString html = QStringLiteral("<table>");
    html += row(tr("<tr><td>Profile Name:</td><td><b>%1</b></td></tr>"), info.name);
    html += row(tr("<tr><td>Profile Version:</td><td><b>%1</b></td></tr>"), info.version);
    html += row(tr("<tr><td>Profile Id:</td><td><b>%1</b></td></tr>"), info.profileId);
    html += row(tr("<tr><td>Profile Comment:</td><td><b>%1</b></td></tr>"), info.comment);
    html += QStringLiteral("</table>");
    html += tr("Variants: <br>");
    for (const ProfileVariant& variant : mProfile.variants()) {
        html += row(QStringLiteral("-  <b>%1</b><br>"), variant.name);
    }
    mInfo->setText(html);
}

void DialogProfileInfo::showEvent(QShowEvent* event)
{
    fillProfileInfo();
    QDialog::showEvent(event);
}

void DialogProfileInfo::slotLink(const QString& link)
{
    if (link == kInstallLink) {
        installProfile();
    }
}

void DialogProfileInfo::installProfile()
{
    // Whoever asked for it is in front: a link in the main window does not show this dialog.
    QWidget* const front = isVisible() ? this : parentWidget();
    const QString title = tr("VELIX Warning");
    const QString file = mDialogs.openFile(front, tr("Select Profile File"), QString(),
                                           tr("Profile File (*.xml);;All Files (* *.*)"));
    if (file.isEmpty()) {
        return;
    }
    if (!ProfileInstaller::isProfile(file)) {
        mDialogs.information(front, title, tr("Not a valid VELIX profile !"));
        return;
    }
    const Outcome installed = ProfileInstaller::install(file, mSettings.installedFile());
    if (!installed.ok) {
        mDialogs.warning(front, title, installed.reason);
        return;
    }
    mDialogs.information(front, tr("VELIX Info"), tr("New profile installed !"));
    mSettings.forgetChosenFile();
    emit signalProfileChanged();
    fillProfileInfo();
}

void DialogProfileInfo::slotClose()
{
    close();
}

} // namespace VELIX
