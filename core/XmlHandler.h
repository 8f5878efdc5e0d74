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
    /// Written as a signed number: values above the signed range come out negative.
    void xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name,
                            unsigned long value);
    /// Always twelve decimals.
    void xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name, double value);
    void xmlCreateParameter(QDomElement& e, const QString& name, const std::string& value);

    QString xmlGetStringAttribute(const QDomNamedNodeMap& attrs, const QString& name,
                                  const QString& def);
    std::string xmlGetStdStringAttribute(const QDomNamedNodeMap& attrs, const QString& name,
                                         const std::string& def);
    /// Decimal, "0x" hexadecimal or "0" octal; 0 if it is no number, the default if it is empty.
    int xmlGetIntAttribute(const QDomNamedNodeMap& attrs, const QString& name, int def);
    double xmlGetDoubleAttribute(const QDomNamedNodeMap& attrs, const QString& name, double def);
    /// True only for "true" and "1".
    bool xmlGetBoolAttribute(const QDomNamedNodeMap& attrs, const QString& name, bool def);

    /// Reads a whole file; false, with a diagnostic, if it cannot be opened or does not parse.
    /// Files nested or entity-laden beyond reason count as not parsing.
    bool xmlReadFile(QDomDocument& doc, const QString& file);
    /// The same without the cost of a document: the text, which is known to parse.
    bool xmlReadText(QByteArray& text, const QString& file);
    /// The same for dir/file, without a diagnostic.
    bool xmlReadFile(QDomDocument& doc, const QString& dir, const QString& file);
    /// Writes beside the target and renames over it, so that a failure leaves the old file.
    bool xmlWriteFile(const QDomDocument& doc, const QString& file);
    bool xmlWriteFile(const QDomDocument& doc, const QString& dir, const QString& file);
};

} // namespace VELIX
