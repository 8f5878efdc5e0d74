#include "gui/look/Resources.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Message
{
    QString context;
    QString source;
    QStringList translations; ///< one, or one per form of number
    bool finished = false;

    std::string label() const
    {
        return QStringLiteral("%1: \"%2\"").arg(context, source).toStdString();
    }
};

Message readMessage(const QString& context, const QDomElement& element)
{
    const QDomElement translation = element.firstChildElement(QStringLiteral("translation"));
    Message message;
    message.context = context;
    message.source = element.firstChildElement(QStringLiteral("source")).text();
    message.finished = !translation.hasAttribute(QStringLiteral("type"));
    const QString formTag = QStringLiteral("numerusform");
    for (QDomElement form = translation.firstChildElement(formTag); !form.isNull();
         form = form.nextSiblingElement(formTag)) {
        message.translations.append(form.text());
    }
    if (message.translations.isEmpty()) {
        message.translations.append(translation.text());
    }
    return message;
}

std::vector<Message> readMessages(const QString& path)
{
    std::vector<Message> messages;
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)) {
        ADD_FAILURE() << "cannot read " << path.toStdString();
        return messages;
    }
    const QDomNodeList contexts = document.elementsByTagName(QStringLiteral("context"));
    for (int c = 0; c < contexts.size(); ++c) {
        const QDomElement context = contexts.at(c).toElement();
        const QString name = context.firstChildElement(QStringLiteral("name")).text();
        const QDomNodeList elements = context.elementsByTagName(QStringLiteral("message"));
        for (int m = 0; m < elements.size(); ++m) {
            messages.push_back(readMessage(name, elements.at(m).toElement()));
        }
    }
    return messages;
}

const std::vector<Message>& germanMessages()
{
    static const std::vector<Message> messages =
        readMessages(QString::fromUtf8(VELIX_TRANSLATION_FILE));
    return messages;
}

/// All matches, sorted, since another language may put them in another order.
QStringList matches(const QString& pattern, const QString& text)
{
    QStringList found;
    auto match = QRegularExpression(pattern).globalMatch(text);
    while (match.hasNext()) {
        found.append(match.next().captured());
    }
    found.sort();
    return found;
}

/// The letter pressed together with Alt, or nothing.
QString accelerator(const QString& text)
{
    static const QRegularExpression mark(QStringLiteral("&([^&\\s])"));
    return mark.match(text).captured(1).toLower();
}

TEST(Translation, LeavesNoTextInEnglish)
{
    ASSERT_FALSE(germanMessages().empty());
    for (const Message& message : germanMessages()) {
        EXPECT_TRUE(message.finished) << message.label();
        for (const QString& translation : message.translations) {
            EXPECT_FALSE(translation.trimmed().isEmpty()) << message.label();
        }
    }
}

TEST(Translation, KeepsWhatTheProgramPutsInOrReads)
{
    const struct
    {
        const char* name;
        QString pattern;
    } rows[] = {
        {"placeholders", QStringLiteral("%L?(\\d+|n)")},
        {"tags", QStringLiteral("</?\\w+>")},
        {"file name patterns", QStringLiteral("\\*[^);]*(?=\\))")},
        {"filter separators", QStringLiteral(";;")},
        {"lines", QStringLiteral("\n")},
        {"space around it", QStringLiteral("^ +| +$")},
        {"running dots", QStringLiteral("\\.\\.\\.")},
        {"accelerator marks", QStringLiteral("&(?=[^&\\s])")},
    };
    for (const Message& message : germanMessages()) {
        for (const QString& translation : message.translations) {
            for (const auto& row : rows) {
                EXPECT_EQ(matches(row.pattern, translation), matches(row.pattern, message.source))
                    << row.name << " of " << message.label();
            }
        }
    }
}

TEST(Translation, GivesEachEntryOfAMenuItsOwnAccelerator)
{
    QMap<QString, QString> owners; // by context, that is by group of menus, and letter
    for (const Message& message : germanMessages()) {
        const QString letter = accelerator(message.translations.first());
        if (letter.isEmpty()) {
            continue;
        }
        QString& owner = owners[message.context + QLatin1Char(' ') + letter];
        EXPECT_TRUE(owner.isEmpty()) << message.label() << " takes the " << letter.toStdString()
                                     << " of \"" << owner.toStdString() << '"';
        owner = message.source;
    }
    EXPECT_FALSE(owners.isEmpty());
}

TEST(Translation, AnswersFromTheResourcesOfTheProgram)
{
    VELIX::initResources();
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral("velix_de"), QStringLiteral(":/trl")));
    for (const Message& message : germanMessages()) {
        const QString text = translator.translate(message.context.toUtf8().constData(),
                                                  message.source.toUtf8().constData(), nullptr, 1);
        EXPECT_EQ(text, message.translations.first()) << message.label();
    }
}

TEST(Translation, CoversTheTextsOfTheToolkitInTheWindows)
{
    const struct
    {
        const char* context;
        const char* source;
        const char* german;
    } rows[] = {
        {"QPlatformTheme", "Cancel", "Abbrechen"}, {"QPlatformTheme", "&Yes", "&Ja"},
        {"QPlatformTheme", "Close", "Schließen"},  {"QWizard", "&Next >", "&Weiter >"},
        {"QWizard", "&Finish", "Ab&schließen"},    {"QShortcut", "Ctrl", "Strg"},
    };
    VELIX::initResources();
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral("qt_de"), QStringLiteral(":/trl")));
    for (const auto& row : rows) {
        EXPECT_EQ(translator.translate(row.context, row.source).toStdString(), row.german);
    }
}

QStringList labels(const std::vector<Message>& messages)
{
    QStringList result;
    for (const Message& message : messages) {
        result.append(QString::fromStdString(message.label()));
    }
    result.sort();
    return result;
}

// A text that the collector misses, or finds in a wrong class, stays English without a word.
TEST(Translation, HoldsTheTextsThatTheSourcesHold)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("collected.ts"));
    const QString root = QString::fromUtf8(VELIX_SOURCE_FOLDER);
    QStringList arguments = {QStringLiteral("-no-obsolete"), QStringLiteral("-recursive"),
                             QStringLiteral("-I"), root};
    const QStringList folders = QString::fromUtf8(VELIX_FOLDERS_WITH_TEXTS).split(QLatin1Char('|'));
    arguments << folders << QStringLiteral("-ts") << file;
    QProcess collector;
    collector.start(QString::fromUtf8(VELIX_LUPDATE), arguments);
    ASSERT_TRUE(collector.waitForFinished());
    const std::string complaints = collector.readAllStandardError().toStdString();
    EXPECT_EQ(complaints, "");

    const std::vector<Message> collected = readMessages(file);
    for (const Message& message : collected) {
        // Two classes stand outside of the namespace; any other name lacks its class.
        EXPECT_TRUE(message.context.startsWith(QLatin1String("VELIX::")) ||
                    message.context == QLatin1String("WidgetGraphBase") ||
                    message.context == QLatin1String("DialogHelp"))
            << message.label();
    }
    const QStringList expected = labels(collected);
    const QStringList found = labels(germanMessages());
    for (const QString& label : expected) {
        EXPECT_TRUE(found.contains(label))
            << label.toStdString() << " is new: build velix_update_ts and translate it";
    }
    for (const QString& label : found) {
        EXPECT_TRUE(expected.contains(label))
            << label.toStdString() << " is gone: build velix_update_ts";
    }
}

} // namespace
