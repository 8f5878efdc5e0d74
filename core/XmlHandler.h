#pragma once

#include <QDomDocument>
#include <QDomElement>
#include <QDomNamedNodeMap>
#include <QString>

#include <string>

namespace VELIX {

/// Stateless helper over the DOM: every XML file of the program is read and written through it.
class XmlHandler
{
public:
    QDomElement xmlCreateElement(QDomDocument& doc, QDomDocument& parent, const QString& name);
    QDomElement xmlCreateElement(QDomDocument& doc, QDomElement& parent, const QString& name);
    void xmlCreateTextElement(QDomDocument& doc, QDomElement& parent, const QString& text);

    void xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name,
                            const QString& value);
    void xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name,
                            const std::string& value);
    void xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name, int value);
    void xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name, long value);
    /// Writes the value as a signed number: above the signed range it comes out negative.
    void xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name,
                            unsigned long value);
    /// Writes the value with twelve decimals.
    void xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name, double value);
    void xmlCreateParameter(QDomElement& e, const QString& name, const std::string& value);

    QString xmlGetStringAttribute(const QDomNamedNodeMap& attrs, const QString& name,
                                  const QString& def);
    std::string xmlGetStdStringAttribute(const QDomNamedNodeMap& attrs, const QString& name,
                                         const std::string& def);
    /// Reads a decimal, "0x" hexadecimal or "0" octal number; 0 if it is no number, the default if
    /// it is empty.
    int xmlGetIntAttribute(const QDomNamedNodeMap& attrs, const QString& name, int def);
    double xmlGetDoubleAttribute(const QDomNamedNodeMap& attrs, const QString& name, double def);
    /// Returns true only for the texts "true" and "1".
    bool xmlGetBoolAttribute(const QDomNamedNodeMap& attrs, const QString& name, bool def);

    /// Reads a whole file; false, with a diagnostic, if it cannot be opened or does not parse.
    /// A file whose nesting or entities go beyond reason counts as one that does not parse.
    bool xmlReadFile(QDomDocument& doc, const QString& file);
    /// Reads the text of a file in the same way: it is known to parse, without the cost of a
    /// document.
    bool xmlReadText(QByteArray& text, const QString& file);
    /// Reads the document dir/file in the same way, without a diagnostic.
    bool xmlReadFile(QDomDocument& doc, const QString& dir, const QString& file);
    /// Writes beside the target and renames over it, so that a failure leaves the old file.
    bool xmlWriteFile(const QDomDocument& doc, const QString& file);
    bool xmlWriteFile(const QDomDocument& doc, const QString& dir, const QString& file);
};

} // namespace VELIX
