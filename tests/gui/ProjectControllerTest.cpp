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
    ProjectController controller{program.project, program.settings, program.dialogs, nullptr};
};

constexpr const char* kSpeed = "Airframe/Ground Speed";
constexpr const char* kOil = "Lane A/Oil Temp";
const QString kQuestion =
    QStringLiteral("VELIX Warning: Current Project not saved !\nSave it now ?");

} // namespace

TEST_F(ProjectControllerTest, AFileThatIsNoProjectNeverBecomesTheOneOfSave)
{
    ASSERT_TRUE(demoProfile().write(file("Profile.xml")));
    const QByteArray before = readFile(file("Profile.xml"));
    program.dialogs.file = file("Profile.xml");
    const Outcome opened = controller.openProject();
    EXPECT_TRUE(opened.ok);
    EXPECT_FALSE(opened.reason.isEmpty());
    EXPECT_EQ(controller.file(), runFile());
    EXPECT_EQ(program.storedSetting("LastProjectPath"), runFile()); // proposed by "Save as"
    EXPECT_TRUE(controller.saveProject(false).ok);
    EXPECT_EQ(readFile(file("Profile.xml")), before);
}

TEST_F(ProjectControllerTest, KeepsARunFileThatItCannotRead)
{
    const Outcome first = controller.readLast();
    EXPECT_TRUE(!first.ok && first.reason.isEmpty()) << "the first run has none";
    ASSERT_TRUE(writeFile(runFile(), "<VelixProject><Para"));
    EXPECT_FALSE(controller.readLast().reason.isEmpty());
    choose(kSpeedId);
    controller.saveOnQuit();
    EXPECT_TRUE(holds(runFile(), kSpeed));
    EXPECT_TRUE(holds(runFile() + QStringLiteral(".broken"), "<Para"));
}

TEST_F(ProjectControllerTest, SavesWithoutAskingAndAsksForANewName)
{
    choose(kSpeedId);
    EXPECT_TRUE(controller.saveProject(false).ok);
    EXPECT_TRUE(program.dialogs.takeAsked().isEmpty());
    EXPECT_TRUE(holds(runFile(), kSpeed));
    EXPECT_FALSE(controller.isModified());

    EXPECT_TRUE(controller.saveProject(true).cancelled);
    EXPECT_EQ(controller.file(), runFile());
    EXPECT_EQ(program.dialogs.lastStart, runFile());
    EXPECT_EQ(program.dialogs.takeAsked(), QStringList(QStringLiteral("Save VELIX Project")));

    program.dialogs.file = file("mine");
    EXPECT_TRUE(controller.saveProject(true).ok);
    EXPECT_EQ(controller.file(), file("mine.xml"));
    EXPECT_EQ(program.storedSetting("LastProjectPath"), file("mine.xml"));
    choose(kOilId);
    EXPECT_TRUE(controller.saveProject(false).ok); // goes to that file from now on
    EXPECT_TRUE(holds(file("mine.xml"), kOil));
    EXPECT_TRUE(holds(runFile(), kSpeed));

    // A file that the user did not name is replaced on request alone.
    ASSERT_TRUE(writeFile(file("other.xml"), "theirs"));
    program.dialogs.file = file("other");
    for (const bool agrees : {false, true}) {
        program.dialogs.agrees = agrees;
        EXPECT_EQ(controller.saveProject(true).ok, agrees);
        EXPECT_EQ(holds(file("other.xml"), "theirs"), !agrees);
    }
}

TEST_F(ProjectControllerTest, NewAndOpenAskAboutUnsavedChangesOnly)
{
    EXPECT_TRUE(controller.newProject().ok);
    EXPECT_TRUE(program.dialogs.takeAsked().isEmpty());

    choose(kSpeedId);
    program.dialogs.answer = DialogService::Answer::Cancel;
    EXPECT_TRUE(controller.newProject().cancelled);
    EXPECT_TRUE(controller.openProject().cancelled);
    EXPECT_EQ(program.dialogs.takeAsked(), (QStringList{kQuestion, kQuestion}));
    EXPECT_TRUE(controller.isModified());

    program.dialogs.answer = DialogService::Answer::Yes;
    EXPECT_TRUE(controller.newProject().ok);
    EXPECT_TRUE(holds(runFile(), kSpeed));
    EXPECT_EQ(program.selection(), QString());
    choose(kOilId);
    program.dialogs.answer = DialogService::Answer::No;
    EXPECT_TRUE(controller.newProject().ok);
    EXPECT_TRUE(holds(runFile(), kSpeed));
}

TEST_F(ProjectControllerTest, AFailedSaveDoesNotGoOnToNew)
{
    choose(kSpeedId);
    program.dialogs.file = file("none/there.xml");
    EXPECT_TRUE(controller.saveProject(true).reason.contains(file("none/there.xml")));
    EXPECT_EQ(controller.file(), runFile());
    ASSERT_TRUE(QDir().mkpath(runFile())); // a folder instead of the file
    program.dialogs.answer = DialogService::Answer::Yes;
    EXPECT_FALSE(controller.newProject().ok);
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
    EXPECT_TRUE(controller.openProject().ok);
    EXPECT_EQ(program.dialogs.takeAsked().value(1), QStringLiteral("Open VELIX Project"));
    EXPECT_EQ(program.selection(), QLatin1String(kOil));
    EXPECT_EQ(program.storedSetting("LastProjectPath"), file("a.xml"));
    controller.saveOnQuit();
    EXPECT_TRUE(holds(runFile(), kOil));

    program.dialogs.file = file("missing.xml");
    EXPECT_FALSE(controller.openProject().reason.isEmpty());
    EXPECT_EQ(controller.file(), file("a.xml"));
    EXPECT_EQ(program.selection(), QLatin1String(kOil));
    EXPECT_TRUE(controller.newProject().ok);
    EXPECT_EQ(controller.file(), runFile());
}

TEST_F(ProjectControllerTest, QuittingWritesTheRunsOwnFileAndNoOther)
{
    controller.saveOnQuit();
    EXPECT_FALSE(QFile::exists(runFile())) << "nothing was done";
    choose(kOilId);
    program.dialogs.file = file("a.xml");
    ASSERT_TRUE(controller.saveProject(true).ok);
    const QByteArray saved = readFile(file("a.xml"));
    controller.saveOnQuit();
    EXPECT_TRUE(holds(runFile(), kOil)) << "saved elsewhere";
    choose(kSpeedId);
    controller.saveOnQuit();
    EXPECT_EQ(program.dialogs.takeAsked().size(), 1) << "when saving";
    EXPECT_TRUE(holds(runFile(), kSpeed));
    EXPECT_EQ(readFile(file("a.xml")), saved);
}
