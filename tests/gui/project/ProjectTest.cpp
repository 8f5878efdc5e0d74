#include "gui/project/Project.h"

#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/TestFile.h"

#include <gtest/gtest.h>

#include <QHash>
#include <QTemporaryDir>

#include <string>

using namespace VELIX;
using VELIX::Test::ProfileBuilder;
using VELIX::Test::readFile;
using VELIX::Test::writeFile;

namespace {

/// Attributes are written in the order of a hash; the program fixes its seed, as it does here.
const bool kSeeded = (qSetGlobalQHashSeed(0), true);

ProfileBuilder twoDevices()
{
    ProfileBuilder builder;
    builder.variant("Solo").variant("Twin");
    builder.device("Lane A")
        .parameter(20, QStringLiteral("Oil"), "FLOAT")
        .parameter(10, QStringLiteral("Fuel"), "FLOAT");
    builder.device("Lane B").parameter(30, QStringLiteral("Oil"), "FLOAT").set("variant", "Twin");
    return builder;
}

class ProjectTest : public ::testing::Test
{
protected:
    ProjectTest() : project(profile)
    {
        EXPECT_TRUE(twoDevices().write(profileFile()));
        EXPECT_TRUE(profile.loadProfile(profileFile()));
        EXPECT_TRUE(profile.setCurrentVariant({}));
    }

    QString profileFile() const { return folder.filePath(QStringLiteral("Profile.xml")); }
    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    std::string projectFile() const { return path("Project.xml").toStdString(); }
    QByteArray written() const { return readFile(path("Project.xml")); }
    void write(const QByteArray& text) const { ASSERT_TRUE(writeFile(path("Project.xml"), text)); }
    void select(std::initializer_list<int> ids) { ProfileBuilder::select(profile, ids); }
    QString selection() const { return ProfileBuilder::selection(profile); }

    QTemporaryDir folder;
    Profile profile;
    Project project;
};

} // namespace

TEST_F(ProjectTest, WritesSelectedParametersInProfileOrderAndPropertiesInKeyOrder)
{
    select({30, 20, 10});
    project.setCanProperties({{"rate", "500"}, {"bus", "1 & 2"}});
    ASSERT_EQ(project.saveProject(projectFile()), 1);
    EXPECT_EQ(written().toStdString(), "<VelixProject>\n"
                                       "    <Parameters>\n"
                                       "        <Parameter name=\"Lane A/Fuel\"/>\n"
                                       "        <Parameter name=\"Lane A/Oil\"/>\n"
                                       "        <Parameter name=\"Lane B/Oil\"/>\n"
                                       "    </Parameters>\n"
                                       "    <CanProperties>\n"
                                       "        <Property id=\"bus\" value=\"1 &amp; 2\"/>\n"
                                       "        <Property id=\"rate\" value=\"500\"/>\n"
                                       "    </CanProperties>\n"
                                       "</VelixProject>\n");
}

TEST_F(ProjectTest, ReadsBackWhatItWrote)
{
    const std::map<std::string, std::string> properties{{"a", "1"}, {"b", "\xC3\xA4 <x>"}};
    select({10, 30});
    project.setCanProperties(properties);
    ASSERT_EQ(project.saveProject(projectFile()), 1);

    select({20});
    Project reader(profile);
    ASSERT_EQ(reader.readProject(projectFile()), 1);
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Fuel, Lane B/Oil"));
    EXPECT_EQ(reader.canProperties(), properties);
}

TEST_F(ProjectTest, ReadsWhatItKnowsAndSkipsTheRest)
{
    select({20});
    project.setCanProperties({{"old", "x"}});
    write("<Other><Noise/><Parameters><Parameter name='Lane A/Fuel'/>"
          "<Parameter name='Lane A/Gone'/><Parameter/><Thing name='Lane B/Oil'/>"
          "</Parameters><CanProperties><Property id='k' value='1'/>"
          "<Property id='k' value='2'/><Thing id='t' value='3'/></CanProperties>"
          "</Other>");
    ASSERT_EQ(project.readProject(projectFile()), 1);
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Fuel"));
    EXPECT_EQ(project.canProperties(), (std::map<std::string, std::string>{{"k", "2"}}));
}

TEST_F(ProjectTest, KeepsTheSelectionWhenAFileCannotBeRead)
{
    const std::map<std::string, std::string> properties{{"k", "v"}};
    select({20});
    project.setCanProperties(properties);
    ASSERT_TRUE(writeFile(path("cut.xml"), "<VelixProject><Parameters>"));
    ASSERT_TRUE(writeFile(path("empty.xml"), ""));
    for (const char* name : {"missing.xml", "cut.xml", "empty.xml", ""}) {
        EXPECT_EQ(project.readProject(path(name).toStdString()), 0) << name;
        EXPECT_EQ(selection(), QStringLiteral("Lane A/Oil")) << name;
        EXPECT_EQ(project.canProperties(), properties) << name;
    }
}

TEST_F(ProjectTest, ReportsAFileThatCannotBeWritten)
{
    EXPECT_EQ(project.saveProject(path("none/Project.xml").toStdString()), 0);
    EXPECT_EQ(project.saveProject(folder.path().toStdString()), 0);
}

TEST_F(ProjectTest, CarriesTheSelectionOverAReload)
{
    select({10, 30});
    project.rememberSelection();
    ASSERT_TRUE(profile.setCurrentVariant(QStringLiteral("Solo")));
    project.restoreSelection();
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Fuel"));

    // What only the other variant has comes back with it; what was unticked meanwhile does not.
    select({20});
    project.rememberSelection();
    ASSERT_TRUE(profile.setCurrentVariant(QStringLiteral("Twin")));
    project.restoreSelection();
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Oil, Lane B/Oil"));
}

TEST_F(ProjectTest, WhatOnlyAnotherVariantHasIsSelectedWithThatVariant)
{
    write("<VelixProject><Parameters><Parameter name='Lane A/Fuel'/>"
          "<Parameter name='Lane B/Oil'/></Parameters></VelixProject>");
    ASSERT_TRUE(profile.setCurrentVariant(QStringLiteral("Solo")));
    ASSERT_EQ(project.readProject(projectFile()), 1);
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Fuel"));

    project.rememberSelection();
    ASSERT_TRUE(profile.setCurrentVariant(QStringLiteral("Twin")));
    project.restoreSelection();
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Fuel, Lane B/Oil"));

    // Saving keeps what is waiting, after what is selected.
    write("<VelixProject><Parameters><Parameter name='Other/A'/>"
          "<Parameter name='Lane B/Oil'/></Parameters></VelixProject>");
    ASSERT_TRUE(profile.setCurrentVariant(QStringLiteral("Solo")));
    ASSERT_EQ(project.readProject(projectFile()), 1);
    select({10});
    ASSERT_EQ(project.saveProject(projectFile()), 1);
    EXPECT_TRUE(written().simplified().contains(
        "<Parameters> <Parameter name=\"Lane A/Fuel\"/> "
        "<Parameter name=\"Lane B/Oil\"/> <Parameter name=\"Other/A\"/> "
        "</Parameters>"));

    // A new project forgets what is waiting, too.
    ASSERT_TRUE(profile.setCurrentVariant(QStringLiteral("Solo")));
    ASSERT_EQ(project.readProject(projectFile()), 1);
    project.setCanProperties({{"k", "v"}});
    project.clear();
    EXPECT_TRUE(project.canProperties().empty());
    ASSERT_TRUE(profile.setCurrentVariant(QStringLiteral("Twin")));
    project.restoreSelection();
    EXPECT_EQ(selection(), QString());
}

TEST_F(ProjectTest, SurvivesAProfileThatCannotBeLoaded)
{
    select({10, 30});
    project.rememberSelection();
    EXPECT_FALSE(profile.loadProfile(path("missing.xml"), QString()));
    project.restoreSelection();
    project.rememberSelection();
    ASSERT_TRUE(profile.loadProfile(profileFile(), QString()));
    project.restoreSelection();
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Fuel, Lane B/Oil"));
}
