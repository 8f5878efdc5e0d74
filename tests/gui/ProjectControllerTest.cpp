#include "gui/ProjectController.h"

#include "tests/gui/TestProgram.h"

#include <gtest/gtest.h>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

class ProjectControllerTest : public ::testing::Test
{
protected:
    ProjectControllerTest()
    {
        EXPECT_TRUE(demoProfile().load(program.profile));
        controller.start(runFile());
    }

    QString runFile() const { return program.data("CurrentProject.xml"); }
    QString file(const char* name) const { return program.home.filePath(QLatin1String(name)); }
    /// The user confirms a selection of this one parameter.
    void choose(int id)
    {
        ProfileBuilder::select(program.profile, {id});
        controller.setModified();
    }
    static bool holds(const QString& path, const char* name)
    {
        return readFile(path).contains(name);
    }

    TestProgram program;
    Outcome outcome; ///< of the last operation
    ProjectController controller{program.project, program.settings, program.dialogs, nullptr};
};

constexpr const char* kSpeed = "Airframe/Ground Speed";
constexpr const char* kOil = "Lane A/Oil Temp";
const QString kQuestion =
    QStringLiteral("VELIX Warning: Current Project not saved !\nSave it now ?");

} // namespace

TEST_F(ProjectControllerTest, AFileThatIsNoProjectNeverBecomesTheOneOfSave)
{
    const QString profile = file("Profile.xml");
    ASSERT_TRUE(demoProfile().write(profile));
    const QByteArray before = readFile(profile);
    program.dialogs.file = profile;
    EXPECT_TRUE((outcome = controller.openProject()).ok);
    EXPECT_EQ(controller.file(), runFile());
    EXPECT_FALSE(outcome.reason.isEmpty());
    choose(kSpeedId);
    EXPECT_TRUE((outcome = controller.saveProject(false)).ok);
    EXPECT_EQ(readFile(profile), before);
    EXPECT_EQ(program.storedSetting("LastProjectPath"), runFile()); // proposed by "Save as"
}

TEST_F(ProjectControllerTest, KeepsARunFileThatItCannotRead)
{
    EXPECT_EQ(controller.file(), runFile());
    EXPECT_EQ(program.storedSetting("LastProjectPath"), runFile());
    EXPECT_FALSE((outcome = controller.readLast()).ok) << "the first run has none";
    EXPECT_TRUE(outcome.reason.isEmpty());
    ASSERT_TRUE(writeFile(runFile(), "<VelixProject><Para"));
    EXPECT_FALSE((outcome = controller.readLast()).ok);
    EXPECT_FALSE(outcome.reason.isEmpty());
    choose(kSpeedId);
    controller.saveOnQuit();
    EXPECT_TRUE(holds(runFile(), kSpeed));
    EXPECT_TRUE(holds(runFile() + QStringLiteral(".broken"), "<Para"));
}

TEST_F(ProjectControllerTest, SavesWithoutAskingAndAsksForANewName)
{
    choose(kSpeedId);
    EXPECT_TRUE((outcome = controller.saveProject(false)).ok);
    EXPECT_TRUE(program.dialogs.takeAsked().isEmpty());
    EXPECT_TRUE(holds(runFile(), kSpeed));
    EXPECT_FALSE(controller.isModified());

    EXPECT_FALSE((outcome = controller.saveProject(true)).ok); // cancelled
    EXPECT_EQ(controller.file(), runFile());
    EXPECT_EQ(program.dialogs.lastStart, runFile());
    EXPECT_EQ(program.dialogs.lastFilter, QStringLiteral("Project Files (*.xml)"));

    program.dialogs.file = file("mine");
    EXPECT_TRUE((outcome = controller.saveProject(true)).ok);
    EXPECT_EQ(program.dialogs.takeAsked().value(1), QStringLiteral("Save VELIX Project"));
    EXPECT_EQ(controller.file(), file("mine.xml"));
    EXPECT_EQ(program.storedSetting("LastProjectPath"), file("mine.xml"));

    choose(kOilId);
    EXPECT_TRUE((outcome = controller.saveProject(false)).ok); // goes to that file from now on
    EXPECT_TRUE(holds(file("mine.xml"), kOil));
    EXPECT_TRUE(holds(runFile(), kSpeed));
}

TEST_F(ProjectControllerTest, DoesNotReplaceAFileThatTheUserDidNotName)
{
    ASSERT_TRUE(writeFile(file("other.xml"), "mine"));
    program.dialogs.file = file("other");
    EXPECT_FALSE((outcome = controller.saveProject(true)).ok);
    EXPECT_EQ(readFile(file("other.xml")), QByteArray("mine"));
    program.dialogs.agrees = true;
    EXPECT_TRUE((outcome = controller.saveProject(true)).ok);
    EXPECT_TRUE(holds(file("other.xml"), "VelixProject"));
}

TEST_F(ProjectControllerTest, NewAndOpenAskAboutUnsavedChangesOnly)
{
    EXPECT_TRUE((outcome = controller.newProject()).ok);
    EXPECT_TRUE(program.dialogs.takeAsked().isEmpty());

    choose(kSpeedId);
    program.dialogs.answer = DialogService::Answer::Cancel;
    EXPECT_FALSE((outcome = controller.newProject()).ok);
    EXPECT_FALSE((outcome = controller.openProject()).ok);
    EXPECT_EQ(program.dialogs.takeAsked(), (QStringList{kQuestion, kQuestion}));
    EXPECT_TRUE(controller.isModified());
    EXPECT_EQ(program.selection(), QLatin1String(kSpeed));

    program.dialogs.answer = DialogService::Answer::Yes;
    EXPECT_TRUE((outcome = controller.newProject()).ok);
    EXPECT_TRUE(holds(runFile(), kSpeed));
    EXPECT_EQ(program.selection(), QString());

    choose(kOilId);
    program.dialogs.answer = DialogService::Answer::No;
    EXPECT_TRUE((outcome = controller.newProject()).ok);
    EXPECT_TRUE(holds(runFile(), kSpeed));
}

TEST_F(ProjectControllerTest, AFailedSaveDoesNotGoOnToNew)
{
    choose(kSpeedId);
    program.dialogs.file = file("none/there.xml");
    EXPECT_FALSE((outcome = controller.saveProject(true)).ok);
    EXPECT_TRUE(outcome.reason.contains(file("none/there.xml")));
    EXPECT_EQ(controller.file(), runFile());

    ASSERT_TRUE(QDir().mkpath(runFile())); // a folder in the place of the file
    program.dialogs.answer = DialogService::Answer::Yes;
    EXPECT_FALSE((outcome = controller.newProject()).ok);
    EXPECT_EQ(program.selection(), QLatin1String(kSpeed));
    EXPECT_TRUE(controller.isModified());
}

TEST_F(ProjectControllerTest, OpeningMakesThatFileTheOneThatIsSaved)
{
    choose(kOilId);
    ASSERT_EQ(program.project.saveProject(file("a.xml").toStdString()), 1);
    program.dialogs.answer = DialogService::Answer::No;
    program.dialogs.file = file("a.xml");
    choose(kSpeedId);
    EXPECT_TRUE((outcome = controller.openProject()).ok);
    EXPECT_EQ(program.dialogs.takeAsked().value(1), QStringLiteral("Open VELIX Project"));
    EXPECT_EQ(program.selection(), QLatin1String(kOil));
    EXPECT_EQ(controller.file(), file("a.xml"));
    EXPECT_EQ(program.storedSetting("LastProjectPath"), file("a.xml"));

    program.dialogs.file = file("missing.xml");
    EXPECT_FALSE((outcome = controller.openProject()).ok);
    EXPECT_FALSE(outcome.reason.isEmpty());
    EXPECT_EQ(controller.file(), file("a.xml"));
    EXPECT_EQ(program.selection(), QLatin1String(kOil));

    EXPECT_TRUE((outcome = controller.newProject()).ok);
    EXPECT_EQ(controller.file(), runFile());
}

TEST_F(ProjectControllerTest, QuittingWritesTheRunsOwnFileAndNoOther)
{
    controller.saveOnQuit();
    EXPECT_FALSE(QFile::exists(runFile())) << "nothing was done";
    choose(kOilId);
    program.dialogs.file = file("a.xml");
    ASSERT_TRUE((outcome = controller.saveProject(true)).ok);
    const QByteArray saved = readFile(file("a.xml"));
    controller.saveOnQuit();
    EXPECT_TRUE(holds(runFile(), kOil)) << "saved elsewhere";
    choose(kSpeedId);
    program.dialogs.takeAsked();
    controller.saveOnQuit();
    EXPECT_TRUE(program.dialogs.takeAsked().isEmpty());
    EXPECT_TRUE(holds(runFile(), kSpeed));
    EXPECT_EQ(readFile(file("a.xml")), saved);

    ASSERT_TRUE((outcome = controller.openProject()).ok);
    ASSERT_TRUE(QFile::remove(runFile()));
    controller.saveOnQuit();
    EXPECT_TRUE(holds(runFile(), kOil)) << "opened from elsewhere";
}
