#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

namespace {

/// The program, started with a home of its own and read through a pipe.
class Startup : public ::testing::Test
{
protected:
    void start(const QStringList& arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), mHome.path());
        mProcess.setProcessEnvironment(environment);
        mProcess.setProcessChannelMode(QProcess::MergedChannels);
        mProcess.start(QStringLiteral(VELIX_PROGRAM), arguments);
        ASSERT_TRUE(mProcess.waitForStarted());
    }

    /// Collects output until a text is in it.
    bool prints(const char* text)
    {
        for (int i = 0; i < 600 && !mOutput.contains(text); ++i) {
            mProcess.waitForReadyRead(100);
            mOutput += mProcess.readAll();
        }
        return mOutput.contains(text);
    }

    /// The exit status after a signal; -1 if it did not end by itself.
    int statusAfter(int number)
    {
        ::kill(static_cast<pid_t>(mProcess.processId()), number);
        const bool ended = mProcess.waitForFinished(60000);
        mOutput += mProcess.readAll();
        return ended && mProcess.exitStatus() == QProcess::NormalExit ? mProcess.exitCode() : -1;
    }

    QTemporaryDir mHome;
    QProcess mProcess;
    QByteArray mOutput;
};

TEST_F(Startup, GoesThroughItsStepsInOrderAndEndsCleanlyOnASignal)
{
    start({QStringLiteral("-x")});
    ASSERT_TRUE(prints("Translation IOS <us> 0\n")) << mOutput.constData();
    EXPECT_EQ(statusAfter(SIGTERM), 0) << mOutput.constData();

    const QByteArray home = mHome.path().toUtf8();
    int position = 0;
    for (const QByteArray& text :
         {QByteArray("----\n\n  "), QByteArray("Debriefing of engine monitoring data\n\n"),
          QByteArray("Version  : VELIX 2.1.2\n"), QByteArray("CWD      : /"), QByteArray("\n----"),
          QByteArray("unknown option -x\nUsage of " VELIX_PROGRAM " :\n"), "HOME: <" + home + ">\n",
          "DataPath created <" + home + "/VELIX/data/>\n",
          "could not open file <" + home + "/VELIX/data//VELIX.ini>\n",
          "readXmlFile <" + home + "/VELIX/data//VELIX.ini> 0\n",
          QByteArray("Translation QT <us> 0\n"), QByteArray("Translation IOS <us> 0\n")}) {
        position = mOutput.indexOf(text, position);
        ASSERT_GE(position, 0) << text.constData() << "missing or out of order in\n"
                               << mOutput.constData();
    }
    EXPECT_TRUE(QFile::exists(mHome.filePath(QStringLiteral("VELIX/data/VELIX.ini"))));
}

TEST_F(Startup, TakesTheLanguageOfTheSettings)
{
    QDir(mHome.path()).mkpath(QStringLiteral("VELIX/data"));
    QFile file(mHome.filePath(QStringLiteral("VELIX/data/VELIX.ini")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<VELIX><Property id='Locale' value='de'/></VELIX>");
    file.close();

    start({QStringLiteral("-h")});
    EXPECT_TRUE(prints("Translation QT <de> 1\nTranslation IOS <de> 1\n")) << mOutput.constData();
    EXPECT_EQ(statusAfter(SIGINT), 0) << mOutput.constData();
    EXPECT_TRUE(mOutput.contains("-s       [stylefile to load] default []\n"));
}

} // namespace
