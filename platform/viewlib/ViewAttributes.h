#pragma once

#include <QColor>
#include <QPointF>
#include <QString>

#include <initializer_list>
#include <map>
#include <utility>

namespace Vista2D {

class ViewErrors;
class ViewStatement;

/// The attributes of one statement as numbers, points and colours. What is wrong goes to the
/// errors and leaves the target as it was.
class ViewAttributes
{
public:
    using ColorNames = std::map<QString, QColor>;

    ViewAttributes(ViewStatement& statement, ViewErrors& errors, const ColorNames& colors)
        : mStatement(statement), mErrors(errors), mColors(colors)
    {}

    /// Each returns whether the attribute is given and right.
    bool text(const char* name, QString& target);
    bool number(const char* name, double& target, double least, double most);
    bool number(const char* name, int& target, int least, int most);
    /// Two numbers with a comma between.
    bool pair(const char* name, QPointF& target, double least, double most);
    bool color(const char* name, QColor& target);
    bool yesOrNo(const char* name, bool& target);
    template <class Enum>
    bool choice(const char* name, Enum& target,
                std::initializer_list<std::pair<const char*, Enum>> choices)
    {
        QString given;
        if (!text(name, given)) {
            return false;
        }
        for (const auto& [word, value] : choices) {
            if (given == QLatin1String(word)) {
                target = value;
                return true;
            }
        }
        wrong(name, QStringLiteral("knows no \"%1\"").arg(given.left(40)));
        return false;
    }
    /// Reports the attribute as missing where `given` is false, which it returns.
    bool require(bool given, const char* name);
    /// Reports a mistake of the statement.
    void wrong(const QString& message);
    void wrong(const char* name, const QString& message);
    /// Returns a colour by name or as #rrggbb; invalid if it is neither.
    [[nodiscard]] QColor colorOf(const QString& text) const;

private:
    ViewStatement& mStatement;
    ViewErrors& mErrors;
    const ColorNames& mColors;
};

} // namespace Vista2D
