// What the manual says, in both languages: complete, linked, illustrated, and true to the texts of
// the program.

#include "gui/help/HelpManual.h"
#include "gui/look/Resources.h"

#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QSet>

#include <gtest/gtest.h>

namespace VELIX {

namespace {

QDomElement pageBody(const QString& folder, const QString& topic)
{
    QFile file(QStringLiteral("%1/%2.html").arg(folder, topic));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)) {
        return {};
    }
    return document.documentElement().firstChildElement(QStringLiteral("body"));
}

QList<QDomElement> elements(const QDomElement& parent, const QString& tag)
{
    QList<QDomElement> found;
    const QDomNodeList list = parent.elementsByTagName(tag);
    for (int i = 0; i < list.size(); ++i) {
        found.append(list.at(i).toElement());
    }
    return found;
}

/// The elements in reading order with what refers to something, but without texts. Words that
/// are emphasised, quoted or keys differ from language to language, and so are left out.
QString structureOf(const QDomElement& element)
{
    static const QStringList inWords{QStringLiteral("i"), QStringLiteral("b"),
                                     QStringLiteral("code"), QStringLiteral("kbd")};
    if (inWords.contains(element.tagName())) {
        return {};
    }
    QString text = element.tagName();
    for (const char* name : {"name", "href", "src"}) {
        text += QLatin1Char(' ') + element.attribute(QLatin1String(name));
    }
    text += QLatin1Char('\n');
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        text += structureOf(child);
    }
    return text;
}

/// A text as the user reads it, without mnemonics and the colon of a label.
QString shown(QString text)
{
    text = text.remove(QLatin1Char('&')).trimmed();
    return text.endsWith(QLatin1Char(':')) ? text.chopped(1).trimmed() : text;
}

QSet<QString> textsOfProgram(const QString& tag)
{
    QFile file(QString::fromUtf8(VELIX_TRANSLATION_FILE));
    QDomDocument document;
    QSet<QString> texts;
    if (file.open(QIODevice::ReadOnly) && document.setContent(&file)) {
        for (const QDomElement& element : elements(document.documentElement(), tag)) {
            texts.insert(shown(element.text()));
        }
    }
    return texts;
}

struct Tongue
{
    const char* locale;
    const char* texts; ///< element of the translation file that holds the texts shown
};

class HelpManualTest : public ::testing::TestWithParam<Tongue>
{
protected:
    HelpManualTest() { initResources(); }

    QString folder() const { return HelpManual::folderOf(QLatin1String(GetParam().locale)); }
};

TEST_P(HelpManualTest, HasAPageOfItsOwnOnEveryTopic)
{
    const HelpManual manual(folder());
    QSet<QString> titles;
    for (const QString& topic : HelpManual::topics()) {
        const HelpPage* page = manual.page(topic);
        ASSERT_NE(page, nullptr) << topic.toStdString();
        titles.insert(page->title);
    }
    EXPECT_EQ(titles.size(), HelpManual::topics().size());
}

TEST_P(HelpManualTest, LinksLeadToPagesAndSections)
{
    const HelpManual manual(folder());
    for (const QString& topic : HelpManual::topics()) {
        for (const QDomElement& link : elements(pageBody(folder(), topic), QStringLiteral("a"))) {
            if (!link.hasAttribute(QStringLiteral("href"))) {
                continue;
            }
            const QStringList target =
                link.attribute(QStringLiteral("href")).split(QLatin1Char('#'));
            const HelpPage* page = manual.page(QFileInfo(target.first()).baseName());
            ASSERT_NE(page, nullptr) << topic.toStdString() << ": " << target.first().toStdString();
            bool found = target.size() == 1;
            for (const HelpSection& section : page->sections) {
                found = found || section.anchor == target.last();
            }
            EXPECT_TRUE(found) << topic.toStdString() << ": " << target.last().toStdString();
        }
    }
}

TEST_P(HelpManualTest, PicturesAreThereAndHaveWords)
{
    int pictures = 0;
    for (const QString& topic : HelpManual::topics()) {
        for (const QDomElement& element :
             elements(pageBody(folder(), topic), QStringLiteral("img"))) {
            const QString name = element.attribute(QStringLiteral("src"));
            const QImage picture(folder() + QLatin1Char('/') + name);
            EXPECT_FALSE(picture.isNull()) << topic.toStdString() << ": " << name.toStdString();
            EXPECT_FALSE(element.attribute(QStringLiteral("alt")).isEmpty()) << name.toStdString();
            ++pictures;
        }
    }
    EXPECT_GT(pictures, 0);
}

TEST_P(HelpManualTest, QuotesTheProgramAsItSpeaks)
{
    const QSet<QString> texts = textsOfProgram(QLatin1String(GetParam().texts));
    for (const QString& topic : HelpManual::topics()) {
        for (const QDomElement& quote : elements(pageBody(folder(), topic), QStringLiteral("b"))) {
            EXPECT_TRUE(texts.contains(quote.text()))
                << topic.toStdString() << ": " << quote.text().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, HelpManualTest,
                         ::testing::Values(Tongue{"us", "source"}, Tongue{"de", "translation"}),
                         [](const auto& row) { return std::string(row.param.locale); });

TEST(HelpManualLanguagesTest, PagesAreBuiltAlike)
{
    initResources();
    for (const QString& topic : HelpManual::topics()) {
        const QString english = structureOf(pageBody(HelpManual::folderOf({}), topic));
        EXPECT_FALSE(english.isEmpty());
        EXPECT_EQ(english, structureOf(pageBody(HelpManual::folderOf(QStringLiteral("de")), topic)))
            << topic.toStdString();
    }
}

TEST(HelpManualSearchTest, FindsTheSectionThatAReaderIsAfter)
{
    initResources();
    struct Row
    {
        const char* locale;
        const char* words;
        const char* topic;  ///< null: nothing is found
        const char* anchor; ///< null: any
    };
    constexpr Row kRows[] = {
        {"us", "graph mouse", "graph", "mouse"},
        {"us", "take-off distance", "statistic", "figures"},
        {"us", "TILE SERVER", "map", "tiles"},
        {"us", "thresh", "files", nullptr},
        {"us", "kmz", "export", "standard"},
        {"us", "no such thing anywhere", nullptr, nullptr},
        {"us", "a", nullptr, nullptr},
        {"us", "  ", nullptr, nullptr},
        {"de", "Maus Graph", "graph", "mouse"},
        {"de", "startstrecke", "statistic", "figures"},
        {"de", "Kachelserver", "map", "tiles"},
        {"de", "schriftgröße", "preferences", nullptr},
        {"de", "threshold", "files", nullptr},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.words);
        const HelpManual manual(HelpManual::folderOf(QLatin1String(row.locale)));
        const QString words = QString::fromUtf8(row.words);
        const std::vector<HelpHit> hits = manual.search(words);
        if (row.topic == nullptr) {
            EXPECT_TRUE(hits.empty());
            continue;
        }
        ASSERT_FALSE(hits.empty());
        EXPECT_EQ(manual.pages()[hits.front().page].topic, QLatin1String(row.topic));
        if (row.anchor != nullptr) {
            EXPECT_EQ(hits.front().anchor, QLatin1String(row.anchor));
        }
    }
}

TEST(HelpManualSearchTest, QuotesTheTextAroundTheWord)
{
    initResources();
    const HelpManual manual(HelpManual::folderOf({}));
    EXPECT_TRUE(manual.search(QStringLiteral("relief zeppelin")).empty()); // all words are wanted
    const std::vector<HelpHit> hits = manual.search(QStringLiteral("relief"));
    ASSERT_FALSE(hits.empty());
    for (const HelpHit& hit : hits) {
        EXPECT_TRUE(hit.snippet.contains(QStringLiteral("relief")));
        EXPECT_LT(hit.snippet.size(), 130);
    }
}

} // namespace

} // namespace VELIX
