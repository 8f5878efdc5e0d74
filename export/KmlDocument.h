#pragma once

#include "core/XmlHandler.h"
#include "export/KmlExportData.h"
#include "export/KmlExportOptions.h"
#include "export/KmlPath.h"

#include <QByteArray>
#include <QDomDocument>
#include <QString>

#include <string>

namespace VELIX {

/// Builds the document of one export, from its head to the path at its end.
///
/// The default form does not pass the schema of KML 2.2: it has no namespace, another order of
/// elements, and no "#" before the name of a style. Files are compared with older ones, so it stays
/// as it is; the options can ask for the standard, which differs in these points only.
class KmlDocument
{
public:
    /// options: with valid numbers; only its look and form are used.
    KmlDocument(const KmlExportOptions& options, const QString& name);

    void addPlacemark(const KmlExportPlacemark& mark);
    void addEvent(const KmlExportError& event);
    void addPath(const KmlPath::Points& points);

    /// The document as UTF-8.
    QByteArray text() const;

private:
    void addStyle(const QString& id, const std::string& color);
    void addMark(const KmlExportPlacemark& mark, const QString& style);
    void addValues(QDomElement& placemark, const std::vector<KmlExportValue>& values);
    void addPathStyle(QDomElement& placemark);
    void addLine(QDomElement& placemark, const KmlPath::Points& points);
    QDomElement addElement(QDomElement& parent, const char* tag);
    void addData(QDomElement& parent, const char* tag, const QString& text);

    const KmlExportOptions& mOptions;
    XmlHandler mXml;
    QDomDocument mDocument;
    QDomElement mBody; ///< "Document"
};

} // namespace VELIX
