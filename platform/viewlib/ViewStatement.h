#pragma once

#include <QString>

#include <vector>

namespace Vista2D {

class ViewErrors;

/// A line of a view description: `word name=value name="a value" {`.
class ViewStatement
{
public:
    enum class Kind { Nothing, Element, Close };

    /// Reads a line. What cannot be understood goes to the errors; the rest of the line counts.
    ViewStatement(const QString& text, int line, ViewErrors& errors);

    [[nodiscard]] Kind kind() const { return mKind; }
    [[nodiscard]] const QString& word() const { return mWord; }
    [[nodiscard]] int line() const { return mLine; }
    /// Whether the lines up to the matching "}" belong to it.
    [[nodiscard]] bool opensBlock() const { return mOpensBlock; }

    struct Attribute
    {
        QString name;
        QString value;
        bool isUsed = false;
    };
    /// Returns the value of an attribute, which counts as used then; null if it is not given.
    const QString* take(const char* name);
    /// Returns all attributes, which count as used then.
    const std::vector<Attribute>& takeAll();
    /// Returns the first unused attribute; null if there is none.
    [[nodiscard]] const QString* unused() const;

private:
    bool readAttribute(const QString& text, int& position);
    static QString quoted(const QString& text, int& position);

    Kind mKind = Kind::Nothing;
    QString mWord;
    int mLine = 0;
    bool mOpensBlock = false;
    std::vector<Attribute> mAttributes;
};

} // namespace Vista2D
