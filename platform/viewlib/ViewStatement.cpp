#include "platform/viewlib/ViewStatement.h"

#include "platform/viewlib/ViewErrors.h"

#include <algorithm>

namespace Vista2D {

namespace {

constexpr int kLongestLine = 4096;
constexpr std::size_t kMostAttributes = 64;

bool isNameCharacter(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_') || c == QLatin1Char('-');
}

QString nameAt(const QString& text, int& position)
{
    const int start = position;
    while (position < text.size() && isNameCharacter(text[position])) {
        ++position;
    }
    return text.mid(start, position - start);
}

void skipBlanks(const QString& text, int& position)
{
    while (position < text.size() && text[position].isSpace()) {
        ++position;
    }
}

} // namespace

ViewStatement::ViewStatement(const QString& text, int line, ViewErrors& errors) : mLine(line)
{
    int position = 0;
    skipBlanks(text, position);
    if (position == text.size() || text[position] == QLatin1Char('#')) {
        return;
    }
    if (text.size() > kLongestLine) {
        errors.add(line, {}, QStringLiteral("longer than %1 characters").arg(kLongestLine));
        return;
    }
    if (text[position] == QLatin1Char('}')) {
        mKind = Kind::Close;
        if (!text.mid(position + 1).trimmed().isEmpty()) {
            errors.add(line, {}, QStringLiteral("text after \"}\""));
        }
        return;
    }
    mWord = nameAt(text, position);
    if (mWord.isEmpty()) {
        errors.add(line, {}, QStringLiteral("expected a word, found \"%1\"").arg(text[position]));
        return;
    }
    mKind = Kind::Element;
    for (skipBlanks(text, position); position < text.size(); skipBlanks(text, position)) {
        const int start = position;
        if (text[position] == QLatin1Char('{') && text.mid(position + 1).trimmed().isEmpty()) {
            mOpensBlock = true;
            return;
        }
        if (!readAttribute(text, position)) {
            errors.add(line, mWord,
                       QStringLiteral("expected NAME=VALUE, found \"%1\"")
                           .arg(text.mid(start, 40).trimmed()));
            mOpensBlock = text.trimmed().endsWith(QLatin1Char('{'));
            return;
        }
    }
}

bool ViewStatement::readAttribute(const QString& text, int& position)
{
    Attribute attribute;
    attribute.name = nameAt(text, position);
    if (attribute.name.isEmpty() || position == text.size() || text[position] != QLatin1Char('=') ||
        mAttributes.size() == kMostAttributes) {
        return false;
    }
    ++position;
    if (position < text.size() && text[position] == QLatin1Char('"')) {
        attribute.value = quoted(text, position);
        if (position > text.size()) {
            return false; // never closed
        }
    } else {
        const int start = position;
        while (position < text.size() && !text[position].isSpace()) {
            ++position;
        }
        attribute.value = text.mid(start, position - start);
    }
    mAttributes.push_back(std::move(attribute));
    return true;
}

/// The text between quotation marks; leaves the position behind the second one, or behind the end
/// of the line if there is none. A backslash takes the next character as it is.
QString ViewStatement::quoted(const QString& text, int& position)
{
    QString value;
    for (++position; position < text.size(); ++position) {
        if (text[position] == QLatin1Char('"')) {
            ++position;
            return value;
        }
        if (text[position] == QLatin1Char('\\') && position + 1 < text.size()) {
            ++position;
        }
        value += text[position];
    }
    position = text.size() + 1;
    return value;
}

const QString* ViewStatement::take(const char* name)
{
    const auto found = std::find_if(mAttributes.begin(), mAttributes.end(),
                                    [&](const auto& a) { return a.name == QLatin1String(name); });
    if (found == mAttributes.end()) {
        return nullptr;
    }
    found->isUsed = true;
    return &found->value;
}

const std::vector<ViewStatement::Attribute>& ViewStatement::takeAll()
{
    for (Attribute& attribute : mAttributes) {
        attribute.isUsed = true;
    }
    return mAttributes;
}

const QString* ViewStatement::unused() const
{
    const auto found = std::find_if(mAttributes.begin(), mAttributes.end(),
                                    [](const Attribute& a) { return !a.isUsed; });
    return found == mAttributes.end() ? nullptr : &found->name;
}

} // namespace Vista2D
