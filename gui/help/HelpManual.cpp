#include "gui/help/HelpManual.h"

#include "core/Diagnostics.h"

#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>

namespace VELIX {

namespace {

constexpr int kPageTitleWeight = 40;
constexpr int kTitleWeight = 25;
constexpr int kWordStartWeight = 3;
constexpr int kWordPartWeight = 1;
constexpr int kMostInText = 5; ///< a long text does not win by repeating itself
constexpr int kSnippetBefore = 30;
constexpr int kSnippetLength = 110;

/// What keeps the texts of neighbouring elements apart.
QString separatorAfter(const QStringRef& element)
{
    static const QStringList blocks{QStringLiteral("p"), QStringLiteral("li"),
                                    QStringLiteral("pre")};
    if (element == QLatin1String("td")) {
        return QStringLiteral(" · ");
    }
    const bool block = std::any_of(blocks.begin(), blocks.end(),
                                   [&](const QString& name) { return element == name; });
    return block ? QStringLiteral(" ") : QString();
}

/// Cuts a page into its sections. False if the file is not well formed.
bool readPage(QIODevice& file, HelpPage& page)
{
    QXmlStreamReader xml(&file);
    page.sections.emplace_back();
    bool inBody = false;
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (xml.name() == QLatin1String("title")) {
                page.title = xml.readElementText();
                page.sections.front().title = page.title;
            } else if (xml.name() == QLatin1String("body")) {
                inBody = true;
            } else if (xml.name() == QLatin1String("h1") || xml.name() == QLatin1String("th")) {
                xml.skipCurrentElement(); // the title once more, or "Key" and "Effect"
            } else if (xml.name() == QLatin1String("h2")) {
                page.sections.emplace_back();
            } else if (xml.name() == QLatin1String("a") &&
                       xml.attributes().hasAttribute(QLatin1String("name"))) {
                HelpSection& section = page.sections.back();
                section.anchor = xml.attributes().value(QLatin1String("name")).toString();
                section.title = xml.readElementText();
            }
            break;
        case QXmlStreamReader::EndElement:
            page.sections.back().text += separatorAfter(xml.name());
            break;
        case QXmlStreamReader::Characters:
            if (inBody) {
                page.sections.back().text += xml.text();
            }
            break;
        default:
            break;
        }
    }
    for (HelpSection& section : page.sections) {
        section.text = section.text.simplified();
    }
    return !xml.hasError() && !page.title.isEmpty();
}

/// What one word contributes to the rank of a section; 0 if it does not occur there.
int weightOf(const QString& word, const HelpSection& section)
{
    int weight = 0;
    if (section.title.contains(word, Qt::CaseInsensitive)) {
        weight += kTitleWeight;
    }
    int counted = 0;
    for (int at = section.text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
         at = section.text.indexOf(word, at + word.size(), Qt::CaseInsensitive)) {
        const bool starts = at == 0 || !section.text.at(at - 1).isLetterOrNumber();
        weight += starts ? kWordStartWeight : kWordPartWeight;
        if (++counted == kMostInText) {
            break;
        }
    }
    return weight;
}

/// The rank of a section; 0 if a word is missing. Words that a section leaves out may be in
/// the title of the page, but the title alone does not make all of its sections worth reading.
int scoreOf(const QStringList& words, const HelpPage& page, const HelpSection& section)
{
    int own = 0;
    int lent = 0;
    for (const QString& word : words) {
        const int weight = weightOf(word, section);
        const bool inTitle = page.title.contains(word, Qt::CaseInsensitive);
        if (weight == 0 && !inTitle) {
            return 0;
        }
        own += weight;
        lent += inTitle ? kPageTitleWeight : 0;
    }
    return own > 0 ? own + lent : 0;
}

QString snippetOf(const QString& text, const QStringList& words)
{
    int first = -1;
    for (const QString& word : words) {
        const int at = text.indexOf(word, 0, Qt::CaseInsensitive);
        first = at >= 0 && (first < 0 || at < first) ? at : first;
    }
    int start = std::max(0, first - kSnippetBefore);
    start = start == 0 ? 0 : text.indexOf(QLatin1Char(' '), start) + 1;
    if (start > first) {
        start = std::max(first, 0); // one long word
    }
    int end = std::min(text.size(), start + kSnippetLength);
    if (end < text.size()) {
        const int space = text.lastIndexOf(QLatin1Char(' '), end);
        end = space > std::max(first, start) ? space : end;
    }
    const QString dots = QStringLiteral("…");
    return (start > 0 ? dots : QString()) + text.mid(start, end - start) +
           (end < text.size() ? dots : QString());
}

} // namespace

QString HelpManual::folderOf(const QString& locale)
{
    return locale == QLatin1String("de") ? QStringLiteral(":/help/de")
                                         : QStringLiteral(":/help/en");
}

const QStringList& HelpManual::topics()
{
    static const QStringList topics{
        QStringLiteral("start"),     QStringLiteral("cards"),       QStringLiteral("parameters"),
        QStringLiteral("replay"),    QStringLiteral("table"),       QStringLiteral("graph"),
        QStringLiteral("fault"),     QStringLiteral("limit"),       QStringLiteral("warning"),
        QStringLiteral("statistic"), QStringLiteral("map"),         QStringLiteral("instrument"),
        QStringLiteral("export"),    QStringLiteral("print"),       QStringLiteral("preferences"),
        QStringLiteral("files"),     QStringLiteral("commandline"), QStringLiteral("keys"),
        QStringLiteral("trouble"),
    };
    return topics;
}

HelpManual::HelpManual(const QString& folder) : mFolder(folder)
{
    for (const QString& topic : topics()) {
        QFile file(folder + QLatin1Char('/') + topic + QStringLiteral(".html"));
        HelpPage page;
        page.topic = topic;
        if (file.open(QIODevice::ReadOnly) && readPage(file, page)) {
            mPages.push_back(std::move(page));
        } else {
            Diagnostics::print("HelpManual: cannot read <%s>\n", qUtf8Printable(file.fileName()));
        }
    }
}

const HelpPage* HelpManual::page(const QString& topic) const
{
    const auto found = std::find_if(mPages.begin(), mPages.end(),
                                    [&](const HelpPage& page) { return page.topic == topic; });
    return found == mPages.end() ? nullptr : &*found;
}

QStringList HelpManual::wordsOf(const QString& search)
{
    QStringList words = search.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    words.erase(std::remove_if(words.begin(), words.end(),
                               [](const QString& word) { return word.size() < 2; }),
                words.end());
    return words;
}

std::vector<HelpHit> HelpManual::search(const QString& words) const
{
    const QStringList wanted = wordsOf(words);
    std::vector<HelpHit> hits;
    if (wanted.isEmpty()) {
        return hits;
    }
    for (std::size_t i = 0; i < mPages.size(); ++i) {
        for (const HelpSection& section : mPages[i].sections) {
            if (const int score = scoreOf(wanted, mPages[i], section); score > 0) {
                hits.push_back(
                    {i, section.anchor, section.title, snippetOf(section.text, wanted), score});
            }
        }
    }
    std::stable_sort(hits.begin(), hits.end(),
                     [](const HelpHit& a, const HelpHit& b) { return a.score > b.score; });
    return hits;
}

} // namespace VELIX
