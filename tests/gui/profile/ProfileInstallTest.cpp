#include "gui/profile/DialogProfileInfo.h"
#include "gui/profile/ProfileInstaller.h"
#include "gui/profile/ProfileSettings.h"
#include "tests/gui/TestProgram.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QSignalSpy>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

class ProfileInstallTest : public ::testing::Test
{
protected:
    QString chosen(const QByteArray& text) const
    {
        QString path = program.home.filePath(QStringLiteral("chosen.xml"));
        EXPECT_TRUE(writeFile(path, text));
        return path;
    }
    QByteArray installed() const { return readFile(program.data("Profile.xml")); }
    void set(const char* key, const QString& value)
    {
        program.settings.setString(key, value.toStdString());
    }

    TestProgram program;
    ProfileSettings settings{program.settings, program.paths};
};

const QByteArray kProfile = "<CanAerospaceProfile name='New &lt;b&gt;' version='2'>"
                            "<Variants><Variant name='Solo'/></Variants></CanAerospaceProfile>";

} // namespace

TEST_F(ProfileInstallTest, ReplacesTheInstalledProfileOnlyByAProfile)
{
    ASSERT_TRUE(program.installProfile());
    const QByteArray before = installed();
    for (const char* text : {"<Other/>", "<CanAerospaceProfile>", ""}) {
        EXPECT_FALSE(ProfileInstaller::isProfile(chosen(text))) << text;
        EXPECT_EQ(installed(), before) << text;
    }
    const QByteArray deep = QByteArray("<a>").repeated(50000) + QByteArray("</a>").repeated(50000);
    QFile huge(program.home.filePath(QStringLiteral("huge.xml")));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly));
    ASSERT_TRUE(huge.resize(qint64(2) << 30));
    for (const QString& file : {chosen("<CanAerospaceProfile>" + deep + "</CanAerospaceProfile>"),
                                huge.fileName(), program.home.path()}) {
        EXPECT_FALSE(ProfileInstaller::isProfile(file));
        EXPECT_EQ(installed(), before);
    }
    EXPECT_TRUE(ProfileInstaller::install(chosen(kProfile), settings.installedFile()).ok);
    EXPECT_EQ(installed(), kProfile);
}

TEST_F(ProfileInstallTest, InstallingTheInstalledFileKeepsIt)
{
    ASSERT_TRUE(program.installProfile());
    const QByteArray before = installed();
    EXPECT_TRUE(ProfileInstaller::install(settings.installedFile(), settings.installedFile()).ok);
    EXPECT_EQ(installed(), before);
}

TEST_F(ProfileInstallTest, ReportsAFolderThatCannotBeWritten)
{
    EXPECT_FALSE(ProfileInstaller::install(
                     chosen(kProfile), program.home.filePath(QStringLiteral("none/Profile.xml")))
                     .ok);
}

TEST_F(ProfileInstallTest, DialogTellsTheOutcomeAndForgetsAChosenFile)
{
    DialogProfileInfo dialog(program.profile, settings, program.dialogs);
    QSignalSpy changes(&dialog, &DialogProfileInfo::signalProfileChanged);

    dialog.installProfile(); // cancelled
    EXPECT_EQ(program.dialogs.takeAsked(), QStringList(QStringLiteral("Select Profile File")));
    EXPECT_EQ(program.dialogs.lastFilter,
              QStringLiteral("Profile File (*.xml);;All Files (* *.*)"));

    program.dialogs.file = chosen("<Other/>");
    dialog.installProfile();
    EXPECT_EQ(program.dialogs.takeAsked().value(1),
              QStringLiteral("VELIX Warning: Not a valid VELIX profile !"));
    EXPECT_EQ(changes.count(), 0);
    EXPECT_TRUE(installed().isEmpty());

    program.dialogs.file = chosen(kProfile);
    set("ProfileFile", program.dialogs.file);
    set("Profile", QStringLiteral("../chosen.xml"));
    dialog.installProfile();
    EXPECT_EQ(program.dialogs.takeAsked().value(1),
              QStringLiteral("VELIX Info: New profile installed !"));
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(settings.profileFile(), settings.installedFile());
    EXPECT_EQ(program.setting("Profile"), QString());
}

TEST_F(ProfileInstallTest, DialogShowsTextsOfTheFileAsTheyStand)
{
    const QString file = chosen(kProfile);
    ASSERT_TRUE(program.profile.loadProfile(file));
    ASSERT_TRUE(program.profile.setCurrentVariant({}));
    DialogProfileInfo dialog(program.profile, settings, program.dialogs);
    dialog.fillProfileInfo();
    const QString text = dialog.findChild<QLabel*>()->text();
    EXPECT_TRUE(text.startsWith(
        QStringLiteral("<table><tr><td>Profile Name:</td><td><b>New &lt;b&gt;</b></td></tr>"
                       "<tr><td>Profile Version:</td><td><b>2</b></td></tr>")));
    EXPECT_TRUE(text.endsWith(QStringLiteral("</table>Variants: <br>-  <b>Solo</b><br>")));
}

TEST_F(ProfileInstallTest, SettingsTellVariantAndChosenFileApart)
{
    const QString file = chosen(kProfile);
    const struct
    {
        QString profile;
        QString profileFile;
        QString variant;
        QString inForce;
    } rows[] = {{{}, {}, {}, settings.installedFile()},
                {QStringLiteral("Solo"), {}, QStringLiteral("Solo"), settings.installedFile()},
                {file, file, {}, file},
                {QStringLiteral("../chosen.xml"), file, {}, file},
                {QStringLiteral("Solo"), file, QStringLiteral("Solo"), file},
                {QStringLiteral("Solo"), QStringLiteral("/gone.xml"), QStringLiteral("Solo"),
                 settings.installedFile()}};
    for (const auto& row : rows) {
        set("Profile", row.profile);
        set("ProfileFile", row.profileFile);
        EXPECT_EQ(settings.variant(), row.variant) << row.profile.toStdString();
        EXPECT_EQ(settings.profileFile(), row.inForce) << row.profileFile.toStdString();
    }
}
