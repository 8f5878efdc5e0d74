#include "export/KmlDocument.h"

#include "export/FixedText.h"

#include <QColor>

#include <cstdio>

namespace VELIX {

namespace {

constexpr int kIndent = 4;
constexpr int kOpaque = 255;

QString normalStyle()
{
    return QStringLiteral("normalPlacemark");
}

QString errorStyle()
{
    return QStringLiteral("errorPlacemark");
}

/// A colour RRGGBB in the order of KML, aabbggrr; what is no colour is black.
QString kmlColor(const std::string& color, int alpha)
{
    const QString name = QLatin1Char('#') + QString::fromStdString(color);
    const QColor rgb = QColor::isValidColor(name) ? QColor(name) : QColor(Qt::black);
    return QString::asprintf("%02x%02x%02x%02x", static_cast<unsigned>(alpha),
                             static_cast<unsigned>(rgb.blue()), static_cast<unsigned>(rgb.green()),
                             static_cast<unsigned>(rgb.red()));
}

void appendCoordinates(const KmlExportData& position, std::string& out)
{
    constexpr int kDegreeDecimals = 8; // about a millimetre
    constexpr int kMeterDecimals = 1;
    appendFixed(position.longitude, kDegreeDecimals, out);
    out += ',';
    appendFixed(position.latitude, kDegreeDecimals, out);
    out += ',';
    appendFixed(position.altitude, kMeterDecimals, out);
}

} // namespace

KmlDocument::KmlDocument(const KmlExportOptions& options, const QString& name) : mOptions(options)
{
    mDocument.appendChild(mDocument.createProcessingInstruction(
        QStringLiteral("xml"), QStringLiteral("version=\"1.0\" encoding=\"UTF-8\"")));
    QDomElement root = mXml.xmlCreateElement(mDocument, mDocument, QStringLiteral("kml"));
    if (options.standard) {
        mXml.xmlCreateAttribute(mDocument, root, QStringLiteral("xmlns"),
                                QStringLiteral("http://www.opengis.net/kml/2.2"));
    }
    mBody = addElement(root, "Document");
    addData(mBody, "name", name);
    addStyle(normalStyle(), options.placeMarkColor);
    addStyle(errorStyle(), options.errorMarkColor);
}

QDomElement KmlDocument::addElement(QDomElement& parent, const char* tag)
{
    return mXml.xmlCreateElement(mDocument, parent, QString::fromLatin1(tag));
}

void KmlDocument::addData(QDomElement& parent, const char* tag, const QString& text)
{
    QDomElement element = addElement(parent, tag);
    mXml.xmlCreateTextElement(mDocument, element, text);
}

void KmlDocument::addStyle(const QString& id, const std::string& color)
{
    QDomElement style = addElement(mBody, "Style");
    mXml.xmlCreateAttribute(mDocument, style, QStringLiteral("id"), id);
    const char* const first = mOptions.standard ? "IconStyle" : "LabelStyle";
    const char* const second = mOptions.standard ? "LabelStyle" : "IconStyle";
    for (const char* const part : {first, second}) {
        QDomElement element = addElement(style, part);
        addData(element, "color", kmlColor(color, kOpaque));
    }
}

void KmlDocument::addPlacemark(const KmlExportPlacemark& mark)
{
    addMark(mark, normalStyle());
}

void KmlDocument::addEvent(const KmlExportError& event)
{
    addMark(event, errorStyle());
}

void KmlDocument::addMark(const KmlExportPlacemark& mark, const QString& style)
{
    QDomElement placemark = addElement(mBody, "Placemark");
    addData(placemark, "name", mark.name);
    addData(placemark, "styleUrl", mOptions.standard ? QLatin1Char('#') + style : style);
    addValues(placemark, mark.values);
    QDomElement point = addElement(placemark, "Point");
    addData(point, "altitudeMode", QStringLiteral("absolute"));
    std::string coordinates;
    appendCoordinates(mark.position, coordinates);
    addData(point, "coordinates", QString::fromStdString(coordinates));
}

void KmlDocument::addValues(QDomElement& placemark, const std::vector<KmlExportValue>& values)
{
    QDomElement table = addElement(placemark, "ExtendedData");
    for (const KmlExportValue& value : values) {
        QDomElement data = addElement(table, "Data");
        mXml.xmlCreateAttribute(mDocument, data, QStringLiteral("name"), value.id);
        addData(data, "displayName", QStringLiteral("<b>%1</b>").arg(value.label));
        addData(data, "value", value.text);
    }
}

void KmlDocument::addPath(const KmlPath::Points& points)
{
    const QString name = QStringLiteral("Flight path");
    QDomElement placemark = addElement(mBody, "Placemark");
    if (mOptions.standard) {
        addData(placemark, "name", name);
    }
    addPathStyle(placemark);
    addLine(placemark, points);
    if (!mOptions.standard) {
        addData(placemark, "name", name);
    }
}

void KmlDocument::addPathStyle(QDomElement& placemark)
{
    QDomElement style = addElement(placemark, "Style");
    QDomElement line = addElement(style, "LineStyle");
    addData(line, "color", kmlColor(mOptions.lineColor, mOptions.lineAlpha));
    addData(line, "width", QString::number(mOptions.lineWidth));
    QDomElement curtain = addElement(style, "PolyStyle");
    addData(curtain, "color", kmlColor(mOptions.polygonColor, mOptions.polygonAlpha));
}

void KmlDocument::addLine(QDomElement& placemark, const KmlPath::Points& points)
{
    std::string coordinates;
    for (const auto& [key, position] : points) {
        appendCoordinates(position, coordinates);
        coordinates += '\n';
    }
    QDomElement line = addElement(placemark, "LineString");
    addData(line, "extrude", mOptions.polygonOn ? QStringLiteral("1") : QStringLiteral("0"));
    if (mOptions.standard) {
        addData(line, "altitudeMode", QStringLiteral("absolute"));
    }
    addData(line, "coordinates", QString::fromStdString(coordinates));
    if (!mOptions.standard) {
        addData(line, "altitudeMode", QStringLiteral("absolute"));
    }
}

QByteArray KmlDocument::text() const
{
    return mDocument.toByteArray(kIndent);
}

} // namespace VELIX
