// The program itself: what only shows from outside, its streams and its exit status.

#include "tests/support/CardFolder.h"
#include "tests/support/ProfileBuilder.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QProcess>

namespace VELIX::Test {
namespace {

class CardProgram : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(ProfileBuilder()
                        .device("EMU")
                        .parameter(1, QStringLiteral("P"), "UCHAR")
                        .write(mProfile));
        mCard.add("a.CAN", RecordBuilder().id(1).at(1).ucharValue(7));
    }
    int run(const QStringList& arguments, const QString& resultsTo = QString())
    {
        QProcess process;
        if (!resultsTo.isEmpty()) {
            process.setStandardOutputFile(resultsTo);
        }
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("DISPLAY"));
        environment.remove(QStringLiteral("HOME"));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(VELIX_CARD_PROGRAM), arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        mResults = process.readAllStandardOutput();
        mDiagnostics = process.readAllStandardError();
        return process.exitCode();
    }
    QStringList info() const
    {
        return {QStringLiteral("info"), mCard.path(), QStringLiteral("--profile"), mProfile};
    }

    QTemporaryDir mFolder;
    QString mProfile = mFolder.filePath(QStringLiteral("Profile.xml"));
    CardFolder mCard;
    QByteArray mResults;
    QByteArray mDiagnostics;
};

TEST_F(CardProgram, KeepsDiagnosticsOutOfItsResults)
{
    EXPECT_EQ(run(info() << QStringLiteral("--cycle") << QStringLiteral("1")), 0);
    QJsonParseError error;
    QJsonDocument::fromJson(mResults, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << mResults.toStdString();
    EXPECT_TRUE(mDiagnostics.contains("load Files"));
}

TEST_F(CardProgram, EndsWithItsStatus)
{
    EXPECT_EQ(run({QStringLiteral("--help")}), 0);
    EXPECT_TRUE(mResults.contains("--profile"));
    EXPECT_TRUE(mDiagnostics.isEmpty());
    EXPECT_EQ(run({}), 2);
    EXPECT_TRUE(mResults.isEmpty());
    EXPECT_EQ(run(info() << QStringLiteral("--cycle") << QStringLiteral("8")), 1);
    EXPECT_TRUE(mResults.isEmpty());
    EXPECT_TRUE(mDiagnostics.endsWith("The card has no cycle 8.\n"));
}

TEST_F(CardProgram, NoticesThatItsResultsWereNotTaken)
{
    EXPECT_EQ(run(info(), QStringLiteral("/dev/full")), 1);
    EXPECT_TRUE(mDiagnostics.endsWith("The result could not be written.\n"));
}

} // namespace
} // namespace VELIX::Test
