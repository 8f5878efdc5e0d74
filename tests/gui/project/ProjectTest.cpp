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
    void switchTo(const char* variant)
    {
        project.rememberSelection();
        ASSERT_TRUE(profile.setCurrentVariant(QLatin1String(variant)));
        project.restoreSelection();
    }

    QTemporaryDir folder;
    Profile profile;
    Project project;
};

} // namespace

TEST_F(ProjectTest, ReadsBackWhatItWrites)
{
    const std::map<std::string, std::string> properties{{"rate", "500"}, {"bus", "1 & \xC3\xA4"}};
    select({30, 20, 10});
    project.setCanProperties(properties);
    ASSERT_EQ(project.saveProject(projectFile()), 1);
    // Parameters in the order of the profile, properties in that of their keys.
    EXPECT_EQ(written().toStdString(), "<VelixProject>\n"
                                       "    <Parameters>\n"
                                       "        <Parameter name=\"Lane A/Fuel\"/>\n"
                                       "        <Parameter name=\"Lane A/Oil\"/>\n"
                                       "        <Parameter name=\"Lane B/Oil\"/>\n"
                                       "    </Parameters>\n"
                                       "    <CanProperties>\n"
                                       "        <Property id=\"bus\" value=\"1 &amp; \xC3\xA4\"/>\n"
                                       "        <Property id=\"rate\" value=\"500\"/>\n"
                                       "    </CanProperties>\n"
                                       "</VelixProject>\n");
    Project reader(profile);
    select({20});
    ASSERT_EQ(reader.readProject(projectFile()), 1);
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Fuel, Lane A/Oil, Lane B/Oil"));
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

    write("<VelixProject><Parameters>");
    for (const std::string& file : {projectFile(), path("missing.xml").toStdString()}) {
        EXPECT_EQ(project.readProject(file), 0) << file;
        EXPECT_EQ(selection(), QStringLiteral("Lane A/Fuel")) << file;
        EXPECT_EQ(project.canProperties().size(), 1U) << file;
    }
    EXPECT_EQ(project.saveProject(folder.path().toStdString()), 0); // a folder is no file
}

TEST_F(ProjectTest, CarriesTheSelectionOverAReload)
{
    select({10, 30});
    switchTo("Solo");
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Fuel"));

    // What only the other variant has comes back with it; what was unticked meanwhile does not.
    select({20});
    switchTo("Twin");
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Oil, Lane B/Oil"));

    project.rememberSelection();
    EXPECT_FALSE(profile.loadProfile(path("missing.xml"), QString()));
    project.restoreSelection();
    project.rememberSelection();
    ASSERT_TRUE(profile.loadProfile(profileFile(), QString()));
    project.restoreSelection();
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Oil, Lane B/Oil"));
}

TEST_F(ProjectTest, WhatOnlyAnotherVariantHasWaitsForIt)
{
    const QByteArray file = "<VelixProject><Parameters><Parameter name='Lane A/Fuel'/>"
                            "<Parameter name='Other/A'/><Parameter name='Lane B/Oil'/>"
                            "</Parameters></VelixProject>";
    write(file);
    switchTo("Solo");
    ASSERT_EQ(project.readProject(projectFile()), 1);
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Fuel"));
    switchTo("Twin");
    EXPECT_EQ(selection(), QStringLiteral("Lane A/Fuel, Lane B/Oil"));

    // Saving keeps what is waiting, after what is selected.
    switchTo("Solo");
    ASSERT_EQ(project.saveProject(projectFile()), 1);
    EXPECT_TRUE(written().simplified().contains(
        "<Parameters> <Parameter name=\"Lane A/Fuel\"/> <Parameter name=\"Lane B/Oil\"/> "
        "<Parameter name=\"Other/A\"/> </Parameters>"));

    project.setCanProperties({{"k", "v"}});
    project.clear(); // forgets what is waiting, too
    EXPECT_TRUE(project.canProperties().empty());
    switchTo("Twin");
    EXPECT_EQ(selection(), QString());
}
