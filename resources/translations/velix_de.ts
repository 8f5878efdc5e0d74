<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_GB">
<context>
    <name>DialogHelp</name>
    <message>
        <source>VELIX Help</source>
        <translation>VELIX – Hilfe</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Suchergebnisse</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Seite des Handbuchs</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Kleinere Schrift</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Größere Schrift</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Handbuch durchsuchen</translation>
    </message>
    <message>
        <source>Previous hit</source>
        <translation>Voriger Treffer</translation>
    </message>
    <message>
        <source>Next hit</source>
        <translation>Nächster Treffer</translation>
    </message>
    <message>
        <source>The manual says nothing about &quot;%1&quot;. Try fewer or shorter words.</source>
        <translation>Das Handbuch sagt nichts über „%1“. Weniger oder kürzere Wörter versuchen.</translation>
    </message>
    <message>
        <source>%1 on this page</source>
        <translation>%1 auf dieser Seite</translation>
    </message>
    <message>
        <source>%1 of %2 on this page</source>
        <translation>%1 von %2 auf dieser Seite</translation>
    </message>
</context>
<context>
    <name>VELIX::CardContainer</name>
    <message>
        <source>The folder %1 cannot be opened. Is the card in its reader?</source>
        <translation>Der Ordner %1 lässt sich nicht öffnen. Steckt die Datenkarte im Leser?</translation>
    </message>
    <message>
        <source>The card has no cycle %1.</source>
        <translation>Auf der Datenkarte gibt es keinen Zyklus %1.</translation>
    </message>
    <message>
        <source>Cycle %1</source>
        <translation>Zyklus %1</translation>
    </message>
    <message>
        <source>The selection holds %1 samples, more than half of the free memory can take. Select fewer files.</source>
        <translation>Die Auswahl enthält %1 Messwerte, mehr als in die Hälfte des freien Speichers passen. Weniger Dateien auswählen.</translation>
    </message>
    <message>
        <source>The file %1 could not be read completely.</source>
        <translation>Die Datei %1 konnte nicht vollständig gelesen werden.</translation>
    </message>
    <message>
        <source>The card has no file %1.</source>
        <translation>Auf der Datenkarte gibt es keine Datei %1.</translation>
    </message>
    <message>
        <source>None of the selected files can be opened. Is the card in its reader?</source>
        <translation>Keine der ausgewählten Dateien lässt sich öffnen. Steckt die Karte im Leser?</translation>
    </message>
</context>
<context>
    <name>VELIX::CardController</name>
    <message>
        <source>Open SD Card</source>
        <translation>SD-Karte öffnen</translation>
    </message>
</context>
<context>
    <name>VELIX::CardLoader</name>
    <message>
        <source>Reading the card %1...</source>
        <translation>Lese die Karte %1...</translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation>Lade %1...</translation>
    </message>
    <message>
        <source>%1 of card %2</source>
        <translation>%1 der Karte %2</translation>
    </message>
</context>
<context>
    <name>VELIX::ColorButton</name>
    <message>
        <source>, %1 % opaque</source>
        <translation>, zu %1 % deckend</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogAbout</name>
    <message>
        <source>About VELIX</source>
        <translation>Über VELIX</translation>
    </message>
    <message>
        <source>Debriefing of engine data cards</source>
        <translation>Auswertung von Datenkarten der Motorüberwachung</translation>
    </message>
    <message>
        <source>Built %1</source>
        <translation>Stand: %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;Licences</source>
        <translation>&amp;Lizenzen</translation>
    </message>
    <message>
        <source>Text of the licence</source>
        <translation>Text der Lizenz</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogCard</name>
    <message>
        <source>Flight %1 %2 (%3)</source>
        <translation>Flug %1 %2 (%3)</translation>
    </message>
    <message>
        <source>Unknown Date</source>
        <translation>Datum unbekannt</translation>
    </message>
    <message>
        <source>%1: take-off at %2, landing at %3 after power-up</source>
        <translation>%1: Start %2, Landung %3 nach dem Einschalten</translation>
    </message>
    <message>
        <source>Start Time: </source>
        <translation>Anfangszeit: </translation>
    </message>
    <message>
        <source>Stop Time: </source>
        <translation>Endzeit: </translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Anfangszeit</translation>
    </message>
    <message>
        <source>Stop Time</source>
        <translation>Endzeit</translation>
    </message>
    <message>
        <source>Bus Type</source>
        <translation>Bustyp</translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation>ECU-Seriennummer</translation>
    </message>
    <message>
        <source>Software Part Nr. A</source>
        <translation>Software-Teilenr. A</translation>
    </message>
    <message>
        <source>Software Part Nr. B</source>
        <translation>Software-Teilenr. B</translation>
    </message>
    <message>
        <source>ECU Type</source>
        <translation>ECU-Typ</translation>
    </message>
    <message>
        <source>EMU SW Version</source>
        <translation>EMU-Softwareversion</translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation>Motor-Seriennr.</translation>
    </message>
    <message>
        <source>Engine Type</source>
        <translation>Motortyp</translation>
    </message>
    <message>
        <source>Samples Total</source>
        <translation>Messwerte gesamt</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>Zyklus</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Zyklen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Raw Data</source>
        <translation>Rohdaten</translation>
    </message>
    <message>
        <source>No card open. Open the folder of a data card.</source>
        <translation>Keine Datenkarte geöffnet. Ordner einer Datenkarte öffnen.</translation>
    </message>
    <message>
        <source>No record files in %1. Open the folder of a data card.</source>
        <translation>Keine Aufzeichnungen in %1. Ordner einer Datenkarte öffnen.</translation>
    </message>
    <message>
        <source>Open Data Folder</source>
        <translation>Datenordner öffnen</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogData</name>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graph</translation>
    </message>
    <message>
        <source>Fault Matrix</source>
        <translation>Fehlermatrix</translation>
    </message>
    <message>
        <source>Limit/Warning</source>
        <translation>Grenzwert/Warnung</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Warnlampen</translation>
    </message>
    <message>
        <source>Tow Statistic</source>
        <translation>Schleppstatistik</translation>
    </message>
    <message>
        <source>EMU View</source>
        <translation>EMU-Anzeige</translation>
    </message>
    <message>
        <source>Loading the record ...</source>
        <translation>Lade die Aufzeichnung ...</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogDataErrorMatrix</name>
    <message>
        <source>Fault matrices</source>
        <translation>Fehlermatrizen</translation>
    </message>
    <message>
        <source>The profile has no fault matrix. Choose another variant, or a profile that has one.</source>
        <translation>Das Profil enthält keine Fehlermatrix. Eine andere Variante wählen oder ein Profil, das eine enthält.</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogDataEvents</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Save as CSV ...</source>
        <translation>Als CSV speichern ...</translation>
    </message>
    <message>
        <source>Show in graph</source>
        <translation>Im Graphen zeigen</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Liste speichern</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>The list was saved as %1.</source>
        <translation>Die Liste wurde als %1 gespeichert.</translation>
    </message>
    <message>
        <source>The list could not be saved as %1: %2</source>
        <translation>Die Liste konnte nicht als %1 gespeichert werden: %2</translation>
    </message>
    <message>
        <source>No record loaded</source>
        <translation>Keine Aufzeichnung geladen</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogDataGraph</name>
    <message>
        <source>No parameter selected. Choose parameters in the list on the left and confirm.</source>
        <translation>Keine Parameter ausgewählt. Parameter in der Liste links wählen und bestätigen.</translation>
    </message>
    <message>
        <source>Select parameters</source>
        <translation>Parameter auswählen</translation>
    </message>
    <message>
        <source>%1 parameters are selected; the graph shows the first %2 of them.</source>
        <translation>%1 Parameter sind ausgewählt; der Graph zeigt die ersten %2 davon.</translation>
    </message>
    <message>
        <source>Save Snapshot</source>
        <translation>Schnappschuss speichern</translation>
    </message>
    <message>
        <source>BMP File (*.bmp);;All Files (*.*)</source>
        <translation>BMP-Datei (*.bmp);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Snapshot saved as %1.</source>
        <translation>Schnappschuss gespeichert als %1.</translation>
    </message>
    <message>
        <source>Snapshot copied to the clipboard.</source>
        <translation>Schnappschuss in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graph</translation>
    </message>
    <message>
        <source>No record loaded</source>
        <translation>Keine Aufzeichnung geladen</translation>
    </message>
    <message>
        <source>No parameter selected</source>
        <translation>Keine Parameter ausgewählt</translation>
    </message>
    <message>
        <source>The graph has been cleared.</source>
        <translation>Der Graph wurde geleert.</translation>
    </message>
    <message>
        <source>Show the record again</source>
        <translation>Aufzeichnung wieder zeigen</translation>
    </message>
    <message>
        <source>Set two markers first: click into the graph, then Shift-click elsewhere.</source>
        <translation>Erst zwei Marken setzen: in den Graphen klicken, dann mit Umschalt woanders.</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogDataLimit</name>
    <message>
        <source>Warning/Limit Exceed</source>
        <translation>Überschrittene Warn-/Grenzwerte</translation>
    </message>
    <message>
        <source>No limit or warning exceeded in this record.</source>
        <translation>In dieser Aufzeichnung wurde kein Grenz- oder Warnwert überschritten.</translation>
    </message>
    <message>
        <source>No parameter profile is installed, so limits cannot be judged.</source>
        <translation>Es ist kein Parameterprofil installiert, daher lassen sich Grenzwerte nicht beurteilen.</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogDataMap</name>
    <message>
        <source>Right click: choose values and the colour of the path</source>
        <translation>Rechtsklick: Werte und Farbe des Flugwegs wählen</translation>
    </message>
    <message>
        <source>Center AC</source>
        <translation>Center AC</translation>
    </message>
    <message>
        <source>Center AC: keep the aircraft in the middle of the map</source>
        <translation>Center AC: das Flugzeug in der Mitte der Karte halten</translation>
    </message>
    <message>
        <source>Show Whole Path</source>
        <translation>Ganzen Flugweg zeigen</translation>
    </message>
    <message>
        <source>No record open. Load a cycle or a flight to see its path.</source>
        <translation>Keine Aufzeichnung geladen. Laden Sie einen Zyklus oder einen Flug, um seinen Weg zu sehen.</translation>
    </message>
    <message>
        <source>This record has no positions.</source>
        <translation>Diese Aufzeichnung hat keine Positionen.</translation>
    </message>
    <message>
        <source>Shade Terrain</source>
        <translation>Gelände schattieren</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogDataStatistic</name>
    <message>
        <source>Tow Statistic</source>
        <translation>Schleppstatistik</translation>
    </message>
    <message>
        <source>Flight Time</source>
        <translation>Flugzeit</translation>
    </message>
    <message>
        <source>Total Fuel Lane A</source>
        <translation>Kraftstoff gesamt Kanal A</translation>
    </message>
    <message>
        <source>Total Fuel Lane B</source>
        <translation>Kraftstoff gesamt Kanal B</translation>
    </message>
    <message>
        <source>Total Fuel</source>
        <translation>Kraftstoff gesamt</translation>
    </message>
    <message>
        <source>Minimum Alt</source>
        <translation>Minimale Höhe</translation>
    </message>
    <message>
        <source>Maximum Alt</source>
        <translation>Maximale Höhe</translation>
    </message>
    <message>
        <source>Total Climb</source>
        <translation>Höhengewinn</translation>
    </message>
    <message>
        <source>Average Climb Rate</source>
        <translation>Mittlere Steigrate</translation>
    </message>
    <message>
        <source>Average Descend Rate</source>
        <translation>Mittlere Sinkrate</translation>
    </message>
    <message>
        <source>Max Ground Speed</source>
        <translation>Maximale Geschwindigkeit über Grund</translation>
    </message>
    <message>
        <source>Time / 100m</source>
        <translation>Zeit / 100m</translation>
    </message>
    <message>
        <source>Fuel / 100m</source>
        <translation>Kraftstoff / 100m</translation>
    </message>
    <message>
        <source>Take Off Distance</source>
        <translation>Startstrecke</translation>
    </message>
    <message>
        <source>Take Off Distance 15m</source>
        <translation>Startstrecke 15m</translation>
    </message>
    <message>
        <source>No flight selected</source>
        <translation>Kein Flug ausgewählt</translation>
    </message>
    <message>
        <source>The flights of this cycle. Choose one in the list of cycles to see all of its figures.</source>
        <translation>Die Flüge dieses Zyklus. Einen davon in der Liste der Zyklen auswählen, um alle seine Werte zu sehen.</translation>
    </message>
    <message>
        <source>Flight</source>
        <translation>Flug</translation>
    </message>
    <message>
        <source>Take-off</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Fuel</source>
        <translation>Kraftstoff</translation>
    </message>
    <message>
        <source>Climb</source>
        <translation>Höhengewinn</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>%1 as %2</source>
        <translation>%1 als %2</translation>
    </message>
    <message>
        <source>The cycle was loaded in imperial units: read %1. Only the take-off distances are in m all the same.</source>
        <translation>Der Zyklus wurde in imperialen Einheiten geladen: %1 lesen. Nur die Startstrecken stehen trotzdem in m.</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogDataTable</name>
    <message>
        <source>Values of the record</source>
        <translation>Werte der Aufzeichnung</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>No parameter selected. Check the parameters to show in the parameter list and confirm the selection.</source>
        <translation>Kein Parameter ausgewählt. In der Parameterliste die gewünschten Parameter ankreuzen und die Auswahl bestätigen.</translation>
    </message>
    <message>
        <source>Select parameters</source>
        <translation>Parameter auswählen</translation>
    </message>
    <message>
        <source>The record has no samples of the selected parameters. Select other parameters or choose another record.</source>
        <translation>Die Aufzeichnung enthält keine Messwerte der ausgewählten Parameter. Andere Parameter oder eine andere Aufzeichnung auswählen.</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogDataView</name>
    <message>
        <source>Instrument panel</source>
        <translation>Instrumentenanzeige</translation>
    </message>
    <message numerus="yes">
        <source>%n more ...</source>
        <translation>
            <numerusform>%n weiterer ...</numerusform>
            <numerusform>%n weitere ...</numerusform>
        </translation>
    </message>
    <message>
        <source>The profile binds no parameter to the panel.</source>
        <translation>Das Profil verbindet keinen Parameter mit der Anzeige.</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogDataWarning</name>
    <message>
        <source>Warning Lamps</source>
        <translation>Warnlampen</translation>
    </message>
    <message>
        <source>No warning lamp was lit in this record.</source>
        <translation>In dieser Aufzeichnung leuchtete keine Warnlampe.</translation>
    </message>
    <message>
        <source>No parameter profile was installed when this record was loaded, so its warning lamps are not known. Load the record again once a profile is installed.</source>
        <translation>Beim Laden dieser Aufzeichnung war kein Parameterprofil installiert, daher sind ihre Warnlampen nicht bekannt. Nach dem Installieren eines Profils die Aufzeichnung erneut laden.</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogExportCsv</name>
    <message>
        <source>CSV Export</source>
        <translation>CSV-Export</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogExportCsvOptions</name>
    <message>
        <source>CSV Export</source>
        <translation>CSV-Export</translation>
    </message>
    <message>
        <source>Select CSV Option</source>
        <translation>CSV-Optionen wählen</translation>
    </message>
    <message>
        <source>Semikolon ;</source>
        <translation>Semikolon ;</translation>
    </message>
    <message>
        <source>Comma ,</source>
        <translation>Komma ,</translation>
    </message>
    <message>
        <source>Tabstop</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>100 ms</source>
        <translation>100 ms</translation>
    </message>
    <message>
        <source>10 ms</source>
        <translation>10 ms</translation>
    </message>
    <message>
        <source>All Parameter</source>
        <translation>Alle Parameter</translation>
    </message>
    <message>
        <source>Selected Parameter only</source>
        <translation>Nur ausgewählte Parameter</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Trennzeichen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Parameter Selection</source>
        <translation>Parameterauswahl</translation>
    </message>
    <message>
        <source>Aligned columns</source>
        <translation>Ausgerichtete Spalten</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Without this, cells move left where a sample is missing</source>
        <translation>Sonst rücken Zellen nach links, wo ein Messwert fehlt</translation>
    </message>
    <message>
        <source>no parameter is selected or has samples</source>
        <translation>kein Parameter ist ausgewählt oder hat Messwerte</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogExportCsvPath</name>
    <message>
        <source>CSV Export</source>
        <translation>CSV-Export</translation>
    </message>
    <message>
        <source>Save CSV Export</source>
        <translation>CSV-Export speichern</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogExportKml</name>
    <message>
        <source>KML Export for Virtual Globes</source>
        <translation>KML-Export für virtuelle Globen</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogExportKmlOptions</name>
    <message>
        <source>Draw Polygon</source>
        <translation>Polygon zeichnen</translation>
    </message>
    <message>
        <source>Standard KML 2.2</source>
        <translation>Standard-KML 2.2</translation>
    </message>
    <message>
        <source>Polygon color</source>
        <translation>Polygonfarbe</translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation>KML-Export</translation>
    </message>
    <message>
        <source>Select KML Option</source>
        <translation>KML-Optionen wählen</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Line color</source>
        <translation>Linienfarbe</translation>
    </message>
    <message>
        <source>A curtain from the path down to the ground</source>
        <translation>Ein Vorhang von der Flugbahn bis zum Boden</translation>
    </message>
    <message>
        <source>Line Style</source>
        <translation>Linienstil</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>For programs that refuse files or colors of the usual form</source>
        <translation>Für Programme, die Dateien oder Farben der üblichen Form ablehnen</translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation>Zeitstempel alle:</translation>
    </message>
    <message>
        <source>Select Line Color</source>
        <translation>Linienfarbe wählen</translation>
    </message>
    <message>
        <source>Select Polygon Color</source>
        <translation>Polygonfarbe wählen</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogExportKmlPath</name>
    <message>
        <source>KML Export</source>
        <translation>KML-Export</translation>
    </message>
    <message>
        <source>A name that ends in &quot;.kmz&quot; makes a compressed file.</source>
        <translation>Ein Name mit der Endung „.kmz“ ergibt eine komprimierte Datei.</translation>
    </message>
    <message>
        <source>This record has no positions. The file will have no flight path.</source>
        <translation>Diese Aufzeichnung hat keine Positionen. Die Datei wird keine Flugbahn haben.</translation>
    </message>
    <message>
        <source>Save KML Export</source>
        <translation>KML-Export speichern</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogExportKmlPlacemark</name>
    <message>
        <source>Draw selected parameters as placemarks</source>
        <translation>Ausgewählte Parameter als Ortsmarken zeichnen</translation>
    </message>
    <message>
        <source>Show Limit exceedance / Warning Lamps</source>
        <translation>Grenzwertüberschreitungen und Warnlampen zeigen</translation>
    </message>
    <message>
        <source>Limit Exceedance</source>
        <translation>Grenzwertüberschreitungen</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Warnlampen</translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation>KML-Export</translation>
    </message>
    <message>
        <source>Select KML Placemarks</source>
        <translation>KML-Ortsmarken wählen</translation>
    </message>
    <message>
        <source> samples</source>
        <translation> Messwerte</translation>
    </message>
    <message>
        <source>Path points</source>
        <translation>Bahnpunkte</translation>
    </message>
    <message>
        <source>Placemarks of parameters</source>
        <translation>Ortsmarken von Parametern</translation>
    </message>
    <message>
        <source>Placemarks of events</source>
        <translation>Ortsmarken von Ereignissen</translation>
    </message>
    <message>
        <source>Placemark Color</source>
        <translation>Ortsmarkenfarbe</translation>
    </message>
    <message>
        <source>Exceedance Placemark Color</source>
        <translation>Ortsmarkenfarbe der Ereignisse</translation>
    </message>
    <message>
        <source>Placemark every</source>
        <translation>Ortsmarke alle</translation>
    </message>
    <message>
        <source>the record has no positions</source>
        <translation>die Aufzeichnung hat keine Positionen</translation>
    </message>
    <message>
        <source>no parameter is selected</source>
        <translation>kein Parameter ist ausgewählt</translation>
    </message>
    <message>
        <source>Select Placemark Color</source>
        <translation>Ortsmarkenfarbe wählen</translation>
    </message>
    <message>
        <source>Select Exceedance Placemark Color</source>
        <translation>Ortsmarkenfarbe der Ereignisse wählen</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogGraphSetup</name>
    <message>
        <source>Oscilloscope Setup</source>
        <translation>Oszilloskop einrichten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Grid On</source>
        <translation>Gitter an</translation>
    </message>
    <message>
        <source>Background Color :</source>
        <translation>Hintergrundfarbe:</translation>
    </message>
    <message>
        <source>Grid On/Color :</source>
        <translation>Gitter an/Farbe:</translation>
    </message>
    <message>
        <source>Label Color :</source>
        <translation>Farbe der Beschriftung:</translation>
    </message>
    <message>
        <source>Label Background :</source>
        <translation>Grund der Beschriftung:</translation>
    </message>
    <message>
        <source>Cursor On</source>
        <translation>Cursor an</translation>
    </message>
    <message>
        <source>Cursor mode</source>
        <translation>Cursormodus</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Beweglich</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Legend On</source>
        <translation>Legende an</translation>
    </message>
    <message>
        <source>Autoscale On</source>
        <translation>Automatische Skala an</translation>
    </message>
    <message>
        <source>Y minimum</source>
        <translation>Y-Minimum</translation>
    </message>
    <message>
        <source>Y maximum</source>
        <translation>Y-Maximum</translation>
    </message>
    <message>
        <source>Cursor On/Mode :</source>
        <translation>Cursor an/Modus:</translation>
    </message>
    <message>
        <source>Legend :</source>
        <translation>Legende:</translation>
    </message>
    <message>
        <source>Y-Scale :</source>
        <translation>Y-Skala:</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Switch autoscale off to set the scale by hand.</source>
        <translation>Die automatische Skala ausschalten, um die Skala von Hand einzustellen.</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogMain</name>
    <message>
        <source>VELIX %1</source>
        <translation>VELIX %1</translation>
    </message>
    <message>
        <source>Load a cycle or a flight to export it</source>
        <translation>Zum Exportieren einen Zyklus oder einen Flug laden</translation>
    </message>
    <message>
        <source>Cycle %1</source>
        <translation>Zyklus %1</translation>
    </message>
    <message>
        <source>Cycle %1, flight %2</source>
        <translation>Zyklus %1, Flug %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>%1: %2 samples of %3 identifiers</source>
        <translation>%1: %2 Messwerte, %3 Kennungen</translation>
    </message>
    <message>
        <source>Open VELIX Project</source>
        <translation>VELIX-Projekt öffnen</translation>
    </message>
    <message>
        <source>Project Files (*.xml)</source>
        <translation>Projektdateien (*.xml)</translation>
    </message>
    <message>
        <source>%1 could not be read as a project.</source>
        <translation>%1 konnte nicht als Projekt gelesen werden.</translation>
    </message>
    <message>
        <source>The project could not be saved to %1.</source>
        <translation>Das Projekt konnte nicht unter %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>VELIX Warning</source>
        <translation>VELIX – Warnung</translation>
    </message>
    <message>
        <source>Current Project not saved !
Save it now ?</source>
        <translation>Das aktuelle Projekt ist nicht gespeichert.
Jetzt speichern?</translation>
    </message>
    <message>
        <source>Save VELIX Project</source>
        <translation>VELIX-Projekt speichern</translation>
    </message>
    <message>
        <source>%1 exists already.
Replace it ?</source>
        <translation>%1 ist bereits vorhanden.
Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>The project of the last run could not be read. It is kept as %1.</source>
        <translation>Das Projekt des letzten Laufs war nicht lesbar. Es bleibt als %1 erhalten.</translation>
    </message>
    <message>
        <source>%1 is not a VELIX project. Saving will not write to it.</source>
        <translation>%1 ist kein VELIX-Projekt. Beim Speichern bleibt die Datei unberührt.</translation>
    </message>
    <message>
        <source>Nothing has changed since the project was saved</source>
        <translation>Seit dem Speichern des Projekts hat sich nichts geändert</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>VELIX Info</source>
        <translation>VELIX – Information</translation>
    </message>
    <message>
        <source>Please restart VELIX to load new language !</source>
        <translation>Die neue Sprache gilt nach einem Neustart von VELIX.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Jetzt neu starten</translation>
    </message>
    <message>
        <source>Restart later: changes will not applied until next restart</source>
        <translation>Später neu starten: Die Änderung gilt erst dann</translation>
    </message>
    <message>
        <source>Select Profile File</source>
        <translation>Profildatei wählen</translation>
    </message>
    <message>
        <source>VELIX Profile (*.xml);;All files (*.*)</source>
        <translation>VELIX-Profile (*.xml);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>%1 is not a VELIX profile.</source>
        <translation>%1 ist kein VELIX-Profil.</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogProfile</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Confirm Selection</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>No profile installed. Parameters come from a profile file.</source>
        <translation>Kein Profil installiert. Die Parameter stammen aus einer Profildatei.</translation>
    </message>
    <message>
        <source>Install New Profile</source>
        <translation>Neues Profil installieren</translation>
    </message>
    <message>
        <source>Selected Parameters</source>
        <translation>Ausgewählte Parameter</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>Parameter suchen</translation>
    </message>
    <message>
        <source>Show no parameter at all</source>
        <translation>Gar keinen Parameter zeigen</translation>
    </message>
    <message>
        <source>Show the ticked parameters in all views</source>
        <translation>Die angekreuzten Parameter in allen Ansichten zeigen</translation>
    </message>
    <message>
        <source>Select &amp;All Shown</source>
        <translation>&amp;Angezeigte auswählen</translation>
    </message>
    <message>
        <source>Select &amp;None Shown</source>
        <translation>Angezeigte a&amp;bwählen</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 von %2 ausgewählt</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogProfileInfo</name>
    <message>
        <source>VELIX Profile Info</source>
        <translation>VELIX – Profil</translation>
    </message>
    <message>
        <source>Install New Profile</source>
        <translation>Neues Profil installieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&lt;tr&gt;&lt;td&gt;Profile Name:&lt;/td&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;/tr&gt;</source>
        <translation>&lt;tr&gt;&lt;td&gt;Name:&lt;/td&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;/tr&gt;</translation>
    </message>
    <message>
        <source>&lt;tr&gt;&lt;td&gt;Profile Version:&lt;/td&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;/tr&gt;</source>
        <translation>&lt;tr&gt;&lt;td&gt;Version:&lt;/td&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;/tr&gt;</translation>
    </message>
    <message>
        <source>&lt;tr&gt;&lt;td&gt;Profile Id:&lt;/td&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;/tr&gt;</source>
        <translation>&lt;tr&gt;&lt;td&gt;Kennung:&lt;/td&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;/tr&gt;</translation>
    </message>
    <message>
        <source>&lt;tr&gt;&lt;td&gt;Profile Comment:&lt;/td&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;/tr&gt;</source>
        <translation>&lt;tr&gt;&lt;td&gt;Kommentar:&lt;/td&gt;&lt;td&gt;&lt;b&gt;%1&lt;/b&gt;&lt;/td&gt;&lt;/tr&gt;</translation>
    </message>
    <message>
        <source>Variants: &lt;br&gt;</source>
        <translation>Varianten: &lt;br&gt;</translation>
    </message>
    <message>
        <source>VELIX Warning</source>
        <translation>VELIX – Warnung</translation>
    </message>
    <message>
        <source>Select Profile File</source>
        <translation>Profildatei wählen</translation>
    </message>
    <message>
        <source>Profile File (*.xml);;All Files (* *.*)</source>
        <translation>Profildateien (*.xml);;Alle Dateien (* *.*)</translation>
    </message>
    <message>
        <source>Not a valid VELIX profile !</source>
        <translation>Das ist kein gültiges VELIX-Profil.</translation>
    </message>
    <message>
        <source>VELIX Info</source>
        <translation>VELIX – Information</translation>
    </message>
    <message>
        <source>New profile installed !</source>
        <translation>Das neue Profil ist installiert.</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogSplash</name>
    <message>
        <source>Starting up VELIX...</source>
        <translation>VELIX startet...</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Creating Dialogs ...</source>
        <translation>Fenster werden aufgebaut ...</translation>
    </message>
</context>
<context>
    <name>VELIX::DialogStatusBar</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>VELIX::ExportColorButton</name>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
</context>
<context>
    <name>VELIX::ExportController</name>
    <message>
        <source>Writing %1</source>
        <translation>Schreibe %1</translation>
    </message>
    <message>
        <source>The export was cancelled. Nothing was written.</source>
        <translation>Der Export wurde abgebrochen. Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>The file %1 could not be written: %2</source>
        <translation>Die Datei %1 ließ sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Geschrieben nach %1</translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation>KML-Export</translation>
    </message>
    <message>
        <source>VELIX Warning</source>
        <translation>VELIX – Warnung</translation>
    </message>
    <message>
        <source>Exporting KML file failed !</source>
        <translation>Der Export der KML-Datei ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>CSV Export</source>
        <translation>CSV-Export</translation>
    </message>
    <message>
        <source>VELIX Viewer Warning</source>
        <translation>VELIX Viewer – Warnung</translation>
    </message>
    <message>
        <source>Exporting CSV file failed !</source>
        <translation>Der Export der CSV-Datei ist fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>VELIX::ExportPathPage</name>
    <message>
        <source>Select the output directory and file</source>
        <translation>Ausgabeordner und Datei wählen</translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation>Exportordner</translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>Der Ordner „%1“ ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder.</source>
        <translation>„%1“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>No files can be written in the folder &quot;%1&quot;.</source>
        <translation>Im Ordner „%1“ können keine Dateien geschrieben werden.</translation>
    </message>
    <message>
        <source>Enter a name for the file.</source>
        <translation>Einen Dateinamen eingeben.</translation>
    </message>
    <message>
        <source>The name of the file must not contain &quot;/&quot;.</source>
        <translation>Der Dateiname darf kein „/“ enthalten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Enter another name.</source>
        <translation>„%1“ ist ein Ordner. Einen anderen Namen eingeben.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already.
Replace it ?</source>
        <translation>Die Datei „%1“ ist bereits vorhanden.
Soll sie ersetzt werden?</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Dur&amp;chsuchen...</translation>
    </message>
</context>
<context>
    <name>VELIX::ExportSummary</name>
    <message>
        <source>What will be written</source>
        <translation>Was geschrieben wird</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>VELIX::GraphCommandBar</name>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom 1:1</source>
        <translation>Zoom 1:1</translation>
    </message>
    <message>
        <source>Zoom Marker</source>
        <translation>Auf Marken zoomen</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>Automatic Mode</source>
        <translation>Automatikmodus</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Split Mode</source>
        <translation>Geteilte Darstellung</translation>
    </message>
    <message>
        <source>Single Graph Mode</source>
        <translation>Gemeinsame Darstellung</translation>
    </message>
    <message>
        <source>Reset all to default</source>
        <translation>Alles zurücksetzen</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Schnappschuss</translation>
    </message>
    <message>
        <source>Previous visible range</source>
        <translation>Voriger sichtbarer Bereich</translation>
    </message>
    <message>
        <source>Next visible range</source>
        <translation>Nächster sichtbarer Bereich</translation>
    </message>
    <message>
        <source>Minimum, maximum and average between the markers</source>
        <translation>Minimum, Maximum und Mittelwert zwischen den Marken</translation>
    </message>
    <message>
        <source>Save Snapshot ...</source>
        <translation>Schnappschuss speichern ...</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
</context>
<context>
    <name>VELIX::GraphOverlay</name>
    <message numerus="yes">
        <source>+ %n more</source>
        <translation>
            <numerusform>+ %n weiterer</numerusform>
            <numerusform>+ %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VELIX::GraphSnapshot</name>
    <message>
        <source>The snapshot could not be saved as %1: %2.</source>
        <translation>Der Schnappschuss konnte nicht als %1 gespeichert werden: %2.</translation>
    </message>
</context>
<context>
    <name>VELIX::GraphStatisticTable</name>
    <message>
        <source>Minimum, maximum and average of the traces</source>
        <translation>Minimum, Maximum und Mittelwert der Kurven</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Between the markers: %1 to %2, %3 s</source>
        <translation>Zwischen den Marken: %1 bis %2, %3 s</translation>
    </message>
    <message>
        <source>In the visible range: %1 to %2, %3 s</source>
        <translation>Im sichtbaren Bereich: %1 bis %2, %3 s</translation>
    </message>
</context>
<context>
    <name>VELIX::GraphTexts</name>
    <message>
        <source>Mark 1</source>
        <translation>Marke 1</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Mark 2</source>
        <translation>Marke 2</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>The selected parameters have no samples in this record.</source>
        <translation>Die ausgewählten Parameter haben in dieser Aufzeichnung keine Messwerte.</translation>
    </message>
    <message>
        <source>No parameter selected. Choose parameters in the list on the left and confirm.</source>
        <translation>Kein Parameter ausgewählt. Parameter in der Liste links auswählen und bestätigen.</translation>
    </message>
    <message>
        <source>All parameters are hidden. Double-click a name in the legend to show it.</source>
        <translation>Alle Parameter sind ausgeblendet. Ein Doppelklick auf einen Namen in der Legende blendet ihn ein.</translation>
    </message>
    <message>
        <source>The samples lie outside the visible range. &quot;Zoom 1:1&quot; shows all of them.</source>
        <translation>Die Messwerte liegen außerhalb des sichtbaren Bereichs. „Zoom 1:1“ zeigt alle.</translation>
    </message>
</context>
<context>
    <name>VELIX::Licences</name>
    <message>
        <source>All rights reserved</source>
        <translation>Alle Rechte vorbehalten</translation>
    </message>
    <message>
        <source>GNU C++ library</source>
        <translation>GNU-C++-Bibliothek</translation>
    </message>
    <message>
        <source>GNU GPL 3 with exception</source>
        <translation>GNU GPL 3 mit Ausnahme</translation>
    </message>
    <message>
        <source>DejaVu fonts</source>
        <translation>DejaVu-Schriften</translation>
    </message>
    <message>
        <source>Bitstream Vera</source>
        <translation>Bitstream Vera</translation>
    </message>
    <message>
        <source>Map data</source>
        <translation>Kartendaten</translation>
    </message>
    <message>
        <source>Public domain, ODbL</source>
        <translation>Gemeinfrei, ODbL</translation>
    </message>
</context>
<context>
    <name>VELIX::MainActions</name>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Neues Projekt</translation>
    </message>
    <message>
        <source>Create new Project</source>
        <translation>Neues Projekt anlegen</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>Projekt ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Open Project File</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>&amp;Save Project</source>
        <translation>Projekt &amp;speichern</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Save Project File</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>&amp;Save Project as</source>
        <translation>Projekt speichern &amp;unter</translation>
    </message>
    <message>
        <source>Save Project as</source>
        <translation>Projekt unter anderem Namen speichern</translation>
    </message>
    <message>
        <source>Save Project File as</source>
        <translation>Projekt speichern unter</translation>
    </message>
    <message>
        <source>&amp;Open Data Folder</source>
        <translation>&amp;Datenordner öffnen</translation>
    </message>
    <message>
        <source>Open Data Folder</source>
        <translation>Datenordner öffnen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Quit Application</source>
        <translation>Programm beenden</translation>
    </message>
    <message>
        <source>Export CSV File</source>
        <translation>CSV-Datei exportieren</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Show Profile Information</source>
        <translation>Profilinformationen zeigen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über VELIX</translation>
    </message>
    <message>
        <source>Show License Information</source>
        <translation>Lizenzhinweise zeigen</translation>
    </message>
    <message>
        <source>&amp;Print ...</source>
        <translation>D&amp;rucken ...</translation>
    </message>
    <message>
        <source>Print the page in front</source>
        <translation>Die vordere Seite drucken</translation>
    </message>
    <message>
        <source>Save as PDF ...</source>
        <translation>Als PDF speichern ...</translation>
    </message>
    <message>
        <source>Save the page in front as a PDF file</source>
        <translation>Die vordere Seite als PDF-Datei speichern</translation>
    </message>
    <message>
        <source>Export Google KML File</source>
        <translation>Google-KML-Datei exportieren</translation>
    </message>
    <message>
        <source>Export Google Earth KML File</source>
        <translation>Google-Earth-KML-Datei exportieren</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Open Preferences Dialog</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Help Window</source>
        <translation>Hilfefenster</translation>
    </message>
</context>
<context>
    <name>VELIX::MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Extras</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>VELIX::MainToolBar</name>
    <message>
        <source>Main Toolbar</source>
        <translation>Hauptwerkzeugleiste</translation>
    </message>
    <message>
        <source>&amp;Variant</source>
        <translation>&amp;Variante</translation>
    </message>
    <message>
        <source>Variant of the profile</source>
        <translation>Variante des Profils</translation>
    </message>
    <message>
        <source>All variants</source>
        <translation>Alle Varianten</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>E&amp;inheiten</translation>
    </message>
    <message>
        <source>Unit system of all values</source>
        <translation>Einheitensystem aller Werte</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrisch</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Imperial</translation>
    </message>
    <message>
        <source>The profile has no variants</source>
        <translation>Das Profil hat keine Varianten</translation>
    </message>
</context>
<context>
    <name>VELIX::MapColoring</name>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Grenzwert</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>VELIX::MapMenu</name>
    <message>
        <source>Show Values</source>
        <translation>Werte zeigen</translation>
    </message>
    <message>
        <source>Colour Path by</source>
        <translation>Flugweg färben nach</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
</context>
<context>
    <name>VELIX::MapSplitter</name>
    <message>
        <source>Hide Map Display</source>
        <translation>Landkarte ausblenden</translation>
    </message>
    <message>
        <source>Tile Map Display Horizontally</source>
        <translation>Landkarte nebeneinander anordnen</translation>
    </message>
    <message>
        <source>Tile Map Display Vertically</source>
        <translation>Landkarte untereinander anordnen</translation>
    </message>
</context>
<context>
    <name>VELIX::MapTileNotice</name>
    <message>
        <source>not an address of HTTP or HTTPS</source>
        <translation>keine Adresse mit HTTP oder HTTPS</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>keine Antwort in angemessener Zeit</translation>
    </message>
    <message>
        <source>not a picture of a tile</source>
        <translation>kein Bild einer Kachel</translation>
    </message>
    <message>
        <source>No map tiles: %1</source>
        <translation>Keine Kartenkacheln: %1</translation>
    </message>
    <message>
        <source>larger than a tile can be</source>
        <translation>größer, als eine Kachel sein kann</translation>
    </message>
    <message>
        <source>not whole in time</source>
        <translation>nicht rechtzeitig vollständig</translation>
    </message>
    <message>
        <source>HTTP status %1</source>
        <translation>HTTP-Status %1</translation>
    </message>
</context>
<context>
    <name>VELIX::PreferencesGeneral</name>
    <message>
        <source>&amp;Select...</source>
        <translation>&amp;Wählen...</translation>
    </message>
    <message>
        <source>&amp;Use Installed Profile</source>
        <translation>&amp;Installiertes Profil</translation>
    </message>
    <message>
        <source>Use a profile file where it lies, without installing it</source>
        <translation>Eine Profildatei von ihrem Ort aus nutzen, ohne sie zu installieren</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation>Sch&amp;riftgröße</translation>
    </message>
    <message>
        <source>&amp;Profile file</source>
        <translation>&amp;Profildatei</translation>
    </message>
    <message>
        <source>Go back to the profile that was installed</source>
        <translation>Zum installierten Profil zurückkehren</translation>
    </message>
    <message>
        <source>The installed profile is in use</source>
        <translation>Das installierte Profil ist in Gebrauch</translation>
    </message>
</context>
<context>
    <name>VELIX::PreferencesMap</name>
    <message>
        <source>&amp;Shade the terrain</source>
        <translation>Gelände &amp;schattieren</translation>
    </message>
    <message>
        <source>Base address of the server; zoom, x and y of a tile follow</source>
        <translation>Grundadresse des Servers; Zoomstufe, x und y einer Kachel folgen</translation>
    </message>
    <message>
        <source>&amp;Defaults</source>
        <translation>Standar&amp;dwerte</translation>
    </message>
    <message>
        <source>&amp;Tile server</source>
        <translation>&amp;Kachelserver</translation>
    </message>
    <message>
        <source>&amp;Contrast</source>
        <translation>K&amp;ontrast</translation>
    </message>
    <message>
        <source>&amp;Brightness</source>
        <translation>&amp;Helligkeit</translation>
    </message>
    <message>
        <source>F&amp;actor</source>
        <translation>&amp;Faktor</translation>
    </message>
    <message>
        <source>The terrain is not shaded</source>
        <translation>Das Gelände wird nicht schattiert</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>When it is full, the tiles unused for longest make way</source>
        <translation>Ist er voll, machen die am längsten ungenutzten Kacheln Platz</translation>
    </message>
    <message>
        <source>Dis&amp;k space for tiles</source>
        <translation>Pl&amp;attenplatz für Kacheln</translation>
    </message>
</context>
<context>
    <name>VELIX::PrintController</name>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>Sent to the printer %1.</source>
        <translation>An den Drucker %1 gesendet.</translation>
    </message>
    <message>
        <source>The printer %1 does not answer.</source>
        <translation>Der Drucker %1 antwortet nicht.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Gespeichert als %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be written: %2</source>
        <translation>Die Datei %1 ließ sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>This page cannot be printed. The graph, the event lists and the tow statistic can.</source>
        <translation>Diese Seite lässt sich nicht drucken. Das geht mit Graph, Ereignislisten und Schleppstatistik.</translation>
    </message>
</context>
<context>
    <name>VELIX::PrintHeader</name>
    <message>
        <source>d MMMM yyyy, hh:mm &apos;UTC&apos;</source>
        <extracomment>Format of a date and time of day on paper</extracomment>
        <translation>d. MMMM yyyy, hh:mm &apos;UTC&apos;</translation>
    </message>
</context>
<context>
    <name>VELIX::PrintPages</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>VELIX::ProfileController</name>
    <message>
        <source>The profile %1 cannot be read.</source>
        <translation>Das Profil %1 ist nicht lesbar.</translation>
    </message>
</context>
<context>
    <name>VELIX::ProfileInstaller</name>
    <message>
        <source>Profile Installation failed !</source>
        <translation>Die Installation des Profils ist fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>VELIX::RecentMenu</name>
    <message>
        <source>&amp;Recent Cards</source>
        <translation>Letzte &amp;Karten</translation>
    </message>
    <message>
        <source>Recent Pro&amp;jects</source>
        <translation>Letzte Pro&amp;jekte</translation>
    </message>
    <message>
        <source>None opened yet</source>
        <translation>Noch keine geöffnet</translation>
    </message>
</context>
<context>
    <name>VELIX::ReplayControls</name>
    <message>
        <source>Date and time (UTC)</source>
        <translation>Datum und Uhrzeit (UTC)</translation>
    </message>
    <message>
        <source>Time of the cursor</source>
        <translation>Zeit am Cursor</translation>
    </message>
    <message>
        <source>Replay Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Position in the record</source>
        <translation>Position in der Aufzeichnung</translation>
    </message>
    <message>
        <source>Replay speed</source>
        <translation>Wiedergabetempo</translation>
    </message>
    <message>
        <source>Speed </source>
        <translation>Tempo </translation>
    </message>
    <message>
        <source>Replay Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Replay Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Replay Run</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Load a cycle, a flight or a file to replay it</source>
        <translation>Zum Wiedergeben einen Zyklus, einen Flug oder eine Datei laden</translation>
    </message>
    <message>
        <source>Start or pause the replay (Space)</source>
        <translation>Wiedergabe starten oder anhalten (Leertaste)</translation>
    </message>
    <message>
        <source>End the replay and return to the start of the record</source>
        <translation>Wiedergabe beenden und zum Anfang der Aufzeichnung zurückkehren</translation>
    </message>
    <message>
        <source>Position in the record (Ctrl+Left, Ctrl+Right: one second, with Shift: ten seconds)</source>
        <translation>Position in der Aufzeichnung (Strg+Links, Strg+Rechts: eine Sekunde, mit Umschalt: zehn Sekunden)</translation>
    </message>
    <message>
        <source>Replay speed, 1 to 100 times real time</source>
        <translation>Wiedergabetempo, 1- bis 100-fache Echtzeit</translation>
    </message>
</context>
<context>
    <name>VELIX::WidgetErrorTime</name>
    <message>
        <source>Fault: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>Info: %1</source>
        <translation>Info: %1</translation>
    </message>
    <message>
        <source>Times of the errors of %1</source>
        <translation>Zeiten der Fehler von %1</translation>
    </message>
    <message>
        <source>The record has no messages of this matrix.</source>
        <translation>Die Aufzeichnung enthält keine Nachrichten dieser Matrix.</translation>
    </message>
    <message>
        <source>No error set</source>
        <translation>Kein Fehler gesetzt</translation>
    </message>
</context>
<context>
    <name>VELIX::WidgetHint</name>
    <message>
        <source>No record loaded. Open the folder of a data card and choose a cycle, a flight or a file.</source>
        <translation>Keine Aufzeichnung geladen. Ordner einer Datenkarte öffnen und einen Zyklus, einen Flug oder eine Datei auswählen.</translation>
    </message>
    <message>
        <source>No parameter profile is installed. Without the profile of your engine, recorded messages cannot be turned into values.</source>
        <translation>Es ist kein Parameterprofil installiert. Ohne das Profil des Motors lassen sich aufgezeichnete Nachrichten nicht in Werte umrechnen.</translation>
    </message>
    <message>
        <source>Install a profile</source>
        <translation>Profil installieren</translation>
    </message>
</context>
<context>
    <name>VELIX::WidgetMap</name>
    <message>
        <source>Map</source>
        <translation>Landkarte</translation>
    </message>
</context>
<context>
    <name>WidgetGraphBase</name>
    <message>
        <source>%1: drag to another place</source>
        <translation>%1: an eine andere Stelle ziehen</translation>
    </message>
    <message>
        <source>%1: double-click to hide</source>
        <translation>%1: Doppelklick blendet aus</translation>
    </message>
    <message>
        <source>%1: double-click to show</source>
        <translation>%1: Doppelklick blendet ein</translation>
    </message>
</context>
</TS>
