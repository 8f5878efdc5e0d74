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

TEST_F(ProfileInstallTest, KnowsAProfileFromOtherFiles)
{
    EXPECT_TRUE(ProfileInstaller::isProfile(chosen(kProfile)));
    const QByteArray deep = QByteArray("<a>").repeated(50000) + QByteArray("</a>").repeated(50000);
    for (const QByteArray& text : {QByteArray("<Other/>"), QByteArray("<CanAerospaceProfile>"),
                                   "<CanAerospaceProfile>" + deep + "</CanAerospaceProfile>"}) {
        EXPECT_FALSE(ProfileInstaller::isProfile(chosen(text))) << text.left(50).constData();
    }
    QFile huge(program.home.filePath(QStringLiteral("huge.xml")));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly));
    ASSERT_TRUE(huge.resize(qint64(2) << 30));
    EXPECT_FALSE(ProfileInstaller::isProfile(huge.fileName()));
    EXPECT_FALSE(ProfileInstaller::isProfile(program.home.path()));
}

TEST_F(ProfileInstallTest, DialogReportsTheOutcomeAndForgetsAChosenFile)
{
    ASSERT_TRUE(program.installProfile());
    const QByteArray before = installed();
    DialogProfileInfo dialog(program.profile, settings, program.dialogs);
    QSignalSpy changes(&dialog, &DialogProfileInfo::signalProfileChanged);
    const auto install = [&](const QString& file) {
        program.dialogs.file = file;
        dialog.installProfile();
        return program.dialogs.takeAsked().mid(1).join(QLatin1Char('|'));
    };
    EXPECT_EQ(install({}), QString()); // cancelled
    EXPECT_EQ(program.dialogs.lastFilter,
              QStringLiteral("Profile File (*.xml);;All Files (* *.*)"));
    EXPECT_EQ(install(chosen("<Other/>")),
              QStringLiteral("VELIX Warning: Not a valid VELIX profile !"));
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(installed(), before);

    const QString done = QStringLiteral("VELIX Info: New profile installed !");
    EXPECT_EQ(install(settings.installedFile()), done);
    EXPECT_EQ(installed(), before);
    set("ProfileFile", chosen(kProfile));
    set("Profile", QStringLiteral("../chosen.xml"));
    EXPECT_EQ(install(chosen(kProfile)), done);
    EXPECT_EQ(installed(), kProfile);
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(settings.profileFile(), settings.installedFile());
    EXPECT_EQ(program.setting("Profile"), QString());

    ASSERT_TRUE(QFile::remove(settings.installedFile()));
    ASSERT_TRUE(QDir().mkpath(settings.installedFile())); // a folder in place of the file
    EXPECT_EQ(install(chosen(kProfile)),
              QStringLiteral("VELIX Warning: Profile Installation failed !"));
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(ProfileInstallTest, DialogShowsTextsOfTheFileAsTheyAre)
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

TEST_F(ProfileInstallTest, SettingsDistinguishVariantAndChosenFile)
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
