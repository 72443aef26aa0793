<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AnimAlign</name>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Alignment tool</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Invert selection</source>
        <translation>Auswahl umkehren</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Operation:</source>
        <translation>Vorgang:</translation>
    </message>
    <message>
        <source>X:</source>
        <translation>X:</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message numerus="yes">
        <source>%n number(s) would leave the range of the text, and stay as they were.</source>
        <translation>
            <numerusform>%n Zahl würde den Bereich des Textes verlassen und bleibt, wie sie war.</numerusform>
            <numerusform>%n Zahlen würden den Bereich des Textes verlassen und bleiben, wie sie waren.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AnimEditTxt</name>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Edit animation code</source>
        <translation>Code der Animation bearbeiten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The code has been changed and not applied. Apply it?</source>
        <translation>Der Code wurde geändert und nicht angewendet. Jetzt anwenden?</translation>
    </message>
</context>
<context>
    <name>AnimImportDlg</name>
    <message>
        <source>Sprites and palettes come along</source>
        <translation>Sprites und Paletten kommen mit</translation>
    </message>
</context>
<context>
    <name>App::ActionList</name>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
</context>
<context>
    <name>App::ActionSearch</name>
    <message>
        <source>Find action</source>
        <translation>Aktion suchen</translation>
    </message>
    <message>
        <source>Type a part of what you want to do</source>
        <translation>Ein Teil des Gesuchten</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
</context>
<context>
    <name>App::Actions</name>
    <message>
        <source>&amp;Open game folder...</source>
        <translation>Spielordner ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save a&amp;ll</source>
        <translation>&amp;Alles speichern</translation>
    </message>
    <message>
        <source>&amp;Close text</source>
        <translation>Text sch&amp;ließen</translation>
    </message>
    <message>
        <source>Close &amp;project</source>
        <translation>&amp;Projekt schließen</translation>
    </message>
    <message>
        <source>Close &amp;game folder</source>
        <translation>Sp&amp;ielordner schließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Alles auswä&amp;hlen</translation>
    </message>
    <message>
        <source>&amp;Encoding...</source>
        <translation>Ko&amp;dierung ...</translation>
    </message>
    <message>
        <source>&amp;Next panel</source>
        <translation>&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>&amp;Previous panel</source>
        <translation>&amp;Voriger Bereich</translation>
    </message>
    <message>
        <source>Next te&amp;xt</source>
        <translation>Nächster &amp;Text</translation>
    </message>
    <message>
        <source>Previous t&amp;ext</source>
        <translation>Voriger Te&amp;xt</translation>
    </message>
    <message>
        <source>&amp;About Zorv</source>
        <translation>&amp;Über Zorv</translation>
    </message>
    <message>
        <source>Save all &amp;as...</source>
        <translation>Alles speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>&amp;Back up...</source>
        <translation>Si&amp;chern ...</translation>
    </message>
    <message>
        <source>Res&amp;tore backup...</source>
        <translation>Sicherung &amp;wiederherstellen ...</translation>
    </message>
    <message>
        <source>R&amp;un in engine</source>
        <translation>In E&amp;ngine starten</translation>
    </message>
    <message>
        <source>&amp;End the engine</source>
        <translation>Engine &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;Find action...</source>
        <translation>Aktion &amp;suchen ...</translation>
    </message>
    <message>
        <source>&amp;Keys...</source>
        <translation>&amp;Tasten ...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Optionen ...</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen ...</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>Weitersuche&amp;n</translation>
    </message>
    <message>
        <source>Find pre&amp;vious</source>
        <translation>&amp;Vorheriges suchen</translation>
    </message>
    <message>
        <source>Find &amp;selection</source>
        <translation>&amp;Markiertes suchen</translation>
    </message>
    <message>
        <source>Rep&amp;lace...</source>
        <translation>Erset&amp;zen ...</translation>
    </message>
    <message>
        <source>Co&amp;mplete word</source>
        <translation>Wort e&amp;rgänzen</translation>
    </message>
    <message>
        <source>&amp;Go to definition</source>
        <translation>&amp;Gehe zur Definition</translation>
    </message>
    <message>
        <source>Go &amp;back</source>
        <translation>&amp;Zurückgehen</translation>
    </message>
    <message>
        <source>&amp;Fold or unfold</source>
        <translation>&amp;Ein- oder ausklappen</translation>
    </message>
    <message>
        <source>Pick &amp;colour</source>
        <translation>&amp;Farbe aufnehmen</translation>
    </message>
    <message>
        <source>Sta&amp;ge</source>
        <translation>&amp;Bühne</translation>
    </message>
    <message>
        <source>Move line &amp;up</source>
        <translation>Zeile nach &amp;oben</translation>
    </message>
    <message>
        <source>Move line do&amp;wn</source>
        <translation>Zeile nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>&amp;Größer</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>&amp;Kleiner</translation>
    </message>
    <message>
        <source>&amp;Usual size</source>
        <translation>&amp;Übliche Größe</translation>
    </message>
    <message>
        <source>E&amp;xchange colours</source>
        <translation>Farben ver&amp;tauschen</translation>
    </message>
    <message>
        <source>&amp;Previous colour</source>
        <translation>&amp;Vorige Farbe</translation>
    </message>
    <message>
        <source>&amp;Next colour</source>
        <translation>&amp;Nächste Farbe</translation>
    </message>
    <message>
        <source>La&amp;rger brush</source>
        <translation>&amp;Größerer Pinsel</translation>
    </message>
    <message>
        <source>S&amp;maller brush</source>
        <translation>&amp;Kleinerer Pinsel</translation>
    </message>
    <message>
        <source>M&amp;ove picture</source>
        <translation>&amp;Bild verschieben</translation>
    </message>
    <message>
        <source>&amp;Frames before and after</source>
        <translation>Frames davor und &amp;danach</translation>
    </message>
    <message>
        <source>Strokes without &amp;corners</source>
        <translation>Striche &amp;ohne Ecken</translation>
    </message>
    <message>
        <source>&amp;Even steps with Shift</source>
        <translation>Gleichmäßige &amp;Stufen mit Umschalt</translation>
    </message>
    <message>
        <source>&amp;Shade along a ramp</source>
        <translation>Entlang eines Verlaufs s&amp;chattieren</translation>
    </message>
    <message>
        <source>Symmetry &amp;left and right</source>
        <translation>Symmetrie &amp;links und rechts</translation>
    </message>
    <message>
        <source>Symmetry &amp;top and bottom</source>
        <translation>Symmetrie oben &amp;und unten</translation>
    </message>
    <message>
        <source>&amp;Grid of pixels</source>
        <translation>&amp;Raster der Pixel</translation>
    </message>
    <message>
        <source>&amp;Axis of the sprite</source>
        <translation>&amp;Achse des Sprites</translation>
    </message>
    <message>
        <source>Symmetry a&amp;bout the middle</source>
        <translation>Symmetrie um die &amp;Mitte</translation>
    </message>
    <message>
        <source>Convert to &amp;indexed colour</source>
        <translation>In &amp;Palettenfarben umwandeln</translation>
    </message>
    <message>
        <source>Convert to &amp;true colour</source>
        <translation>In &amp;Echtfarben umwandeln</translation>
    </message>
    <message>
        <source>Set a&amp;xis...</source>
        <translation>A&amp;chse setzen...</translation>
    </message>
    <message>
        <source>D&amp;uplicate palette</source>
        <translation>Palette verd&amp;oppeln</translation>
    </message>
    <message>
        <source>Sort &amp;colours...</source>
        <translation>&amp;Farben sortieren ...</translation>
    </message>
    <message>
        <source>&amp;Ramp between two slots...</source>
        <translation>Farb&amp;verlauf zwischen zwei Plätzen ...</translation>
    </message>
    <message>
        <source>Shift &amp;hue...</source>
        <translation>Farb&amp;ton verschieben ...</translation>
    </message>
    <message>
        <source>Replace colour in all &amp;palettes...</source>
        <translation>Farbe in allen &amp;Paletten ersetzen ...</translation>
    </message>
    <message>
        <source>Count uses of co&amp;lours</source>
        <translation>Verwendun&amp;gen der Farben zählen</translation>
    </message>
    <message>
        <source>Without &amp;red (protanopia)</source>
        <translation>Ohne &amp;Rot (Protanopie)</translation>
    </message>
    <message>
        <source>Without &amp;green (deuteranopia)</source>
        <translation>Ohne &amp;Grün (Deuteranopie)</translation>
    </message>
    <message>
        <source>Without &amp;blue (tritanopia)</source>
        <translation>Ohne &amp;Blau (Tritanopie)</translation>
    </message>
    <message>
        <source>New &amp;game...</source>
        <translation>Neues &amp;Spiel...</translation>
    </message>
    <message>
        <source>New &amp;character...</source>
        <translation>Neue &amp;Figur...</translation>
    </message>
    <message>
        <source>New &amp;stage...</source>
        <translation>Neue &amp;Bühne...</translation>
    </message>
    <message>
        <source>New &amp;file...</source>
        <translation>Neue &amp;Datei...</translation>
    </message>
    <message>
        <source>&amp;First lesson</source>
        <translation>&amp;Erste Lektion</translation>
    </message>
    <message>
        <source>Open &amp;sample game</source>
        <translation>&amp;Beispielspiel öffnen</translation>
    </message>
    <message>
        <source>Find in &amp;game files...</source>
        <translation>In &amp;Spieldateien suchen...</translation>
    </message>
    <message>
        <source>Replace in ga&amp;me files...</source>
        <translation>In Spie&amp;ldateien ersetzen...</translation>
    </message>
    <message>
        <source>&amp;Quick fix...</source>
        <translation>Schnell &amp;beheben...</translation>
    </message>
    <message>
        <source>Find reference&amp;s</source>
        <translation>Verwendungen &amp;finden</translation>
    </message>
    <message>
        <source>&amp;Rename everywhere...</source>
        <translation>Überall &amp;umbenennen...</translation>
    </message>
    <message>
        <source>Ta&amp;ke the rename back</source>
        <translation>Umbenennen &amp;zurücknehmen</translation>
    </message>
</context>
<context>
    <name>App::AddImages</name>
    <message>
        <source>Add images</source>
        <translation>Bilder hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) came in.</source>
        <translation>
            <numerusform>%n Sprite ist dazugekommen.</numerusform>
            <numerusform>%n Sprites sind dazugekommen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::AxisDialog</name>
    <message>
        <source>Where it is now</source>
        <translation>Wo sie jetzt ist</translation>
    </message>
    <message>
        <source>Set axis</source>
        <translation>Achse setzen</translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s)</source>
        <translation>
            <numerusform>%n Sprite</numerusform>
            <numerusform>%n Sprites</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>&amp;Platz:</translation>
    </message>
    <message>
        <source>To the &amp;right:</source>
        <translation>Nach &amp;rechts:</translation>
    </message>
    <message>
        <source>&amp;Down:</source>
        <translation>Nach &amp;unten:</translation>
    </message>
    <message>
        <source>Sprite %1: the axis goes from %2,%3 to %4,%5.</source>
        <translation>Sprite %1: Die Achse geht von %2,%3 nach %4,%5.</translation>
    </message>
    <message numerus="yes">
        <source>The axis of %n sprite(s) is set.</source>
        <translation>
            <numerusform>Die Achse von %n Sprite ist gesetzt.</numerusform>
            <numerusform>Die Achsen von %n Sprites sind gesetzt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::AxisPlaces</name>
    <message>
        <source>Top left corner</source>
        <translation>Linke obere Ecke</translation>
    </message>
    <message>
        <source>Middle of the top edge</source>
        <translation>Mitte der oberen Kante</translation>
    </message>
    <message>
        <source>Top right corner</source>
        <translation>Rechte obere Ecke</translation>
    </message>
    <message>
        <source>Middle of the left edge</source>
        <translation>Mitte der linken Kante</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Middle of the right edge</source>
        <translation>Mitte der rechten Kante</translation>
    </message>
    <message>
        <source>Bottom left corner</source>
        <translation>Linke untere Ecke</translation>
    </message>
    <message>
        <source>Middle of the bottom edge</source>
        <translation>Mitte der unteren Kante</translation>
    </message>
    <message>
        <source>Bottom right corner</source>
        <translation>Rechte untere Ecke</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> Pixel</translation>
    </message>
</context>
<context>
    <name>App::BackupNameDialog</name>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>&amp;With the projects that are not open</source>
        <translation>&amp;Mit den nicht geöffneten Projekten</translation>
    </message>
    <message>
        <source>Back up</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>&amp;Name of the backup:</source>
        <translation>&amp;Name der Sicherung:</translation>
    </message>
</context>
<context>
    <name>App::Bars</name>
    <message>
        <source>Main</source>
        <translation>Haupt-Werkzeugleiste</translation>
    </message>
    <message>
        <source>Editors</source>
        <translation>Editoren</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Bühne</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Einzelbild</translation>
    </message>
    <message>
        <source>Onion skin</source>
        <translation>Zwiebelschalen</translation>
    </message>
    <message>
        <source>Painting tools</source>
        <translation>Malwerkzeuge</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Painting tool</source>
        <translation>Malwerkzeug</translation>
    </message>
</context>
<context>
    <name>App::CanvasInput</name>
    <message>
        <source>The sprite %1, which was painted on, is no longer in its file. The copy is kept; it can be saved as a picture.</source>
        <translation>Das Sprite %1, auf dem gemalt wurde, ist nicht mehr in seiner Datei. Die Kopie bleibt erhalten und kann als Bild gespeichert werden.</translation>
    </message>
    <message>
        <source>The canvas of the sprite %1 could not be shown. The copy is kept.</source>
        <translation>Die Zeichenfläche des Sprites %1 konnte nicht gezeigt werden. Die Kopie bleibt erhalten.</translation>
    </message>
</context>
<context>
    <name>App::CodeHelp</name>
    <message>
        <source>There are no words to choose from at this place.</source>
        <translation>An dieser Stelle gibt es keine Wörter zur Auswahl.</translation>
    </message>
</context>
<context>
    <name>App::CodeTextEditor</name>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Nodes of the text</source>
        <translation>Knoten des Textes</translation>
    </message>
</context>
<context>
    <name>App::ColorExchange</name>
    <message>
        <source>Paste colours</source>
        <translation>Farben einfügen</translation>
    </message>
    <message>
        <source>There are no colours on the clipboard. Colours are copied from a palette, or as text: &quot;#rrggbb&quot;, a line each.</source>
        <translation>In der Zwischenablage sind keine Farben. Farben werden aus einer Palette kopiert, oder als Text: „#rrggbb“, je eine Zeile.</translation>
    </message>
</context>
<context>
    <name>App::CompareDialog</name>
    <message>
        <source>the file</source>
        <translation>die Datei</translation>
    </message>
    <message>
        <source>what is open here</source>
        <translation>was hier offen ist</translation>
    </message>
    <message>
        <source>There is no difference.</source>
        <translation>Es gibt keinen Unterschied.</translation>
    </message>
</context>
<context>
    <name>App::Costumes</name>
    <message>
        <source>Drop colours</source>
        <translation>Farben ablegen</translation>
    </message>
</context>
<context>
    <name>App::DefinitionJumps</name>
    <message>
        <source>%1 is no text that can be shown here.</source>
        <translation>%1 ist kein Text, der hier gezeigt werden kann.</translation>
    </message>
    <message>
        <source>There is no jump to go back from.</source>
        <translation>Es gibt keinen Sprung, von dem es zurückgeht.</translation>
    </message>
</context>
<context>
    <name>App::DiffView</name>
    <message>
        <source>Comparison of the file and the unsaved work</source>
        <translation>Vergleich der Datei mit der ungespeicherten Arbeit</translation>
    </message>
    <message>
        <source>The rest is not shown.</source>
        <translation>Der Rest wird nicht gezeigt.</translation>
    </message>
</context>
<context>
    <name>App::DocumentTabs</name>
    <message>
        <source>new file</source>
        <translation>neue Datei</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
</context>
<context>
    <name>App::EditorRegistry</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Text:</translation>
    </message>
</context>
<context>
    <name>App::EncodingChoice</name>
    <message>
        <source>%1 has unsaved changes. They are lost if it is read again in %2.</source>
        <translation>%1 hat ungespeicherte Änderungen. Sie gehen verloren, wenn die Datei in %2 neu gelesen wird.</translation>
    </message>
    <message>
        <source>%1 can be read again in %2, or keep its text and be saved in it.</source>
        <translation>%1 kann in %2 neu gelesen werden, oder der Text bleibt und wird darin gespeichert.</translation>
    </message>
    <message>
        <source>Read the file again in %1</source>
        <translation>Datei in %1 neu lesen</translation>
    </message>
    <message>
        <source>Keep the text, and save it in %1</source>
        <translation>Text behalten und in %1 speichern</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>Encoding of the file:</source>
        <translation>Kodierung der Datei:</translation>
    </message>
</context>
<context>
    <name>App::EnginesPage</name>
    <message>
        <source>Engines</source>
        <translation>Engines</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Program:</source>
        <translation>&amp;Programm:</translation>
    </message>
    <message>
        <source>Para&amp;meters:</source>
        <translation>Para&amp;meter:</translation>
    </message>
    <message>
        <source>&amp;Icon:</source>
        <translation>&amp;Symbol:</translation>
    </message>
    <message>
        <source>The settings could not be saved. Check the permissions of the settings file.</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden. Bitte die Rechte der Einstellungsdatei prüfen.</translation>
    </message>
    <message>
        <source>New engine</source>
        <translation>Neue Engine</translation>
    </message>
    <message>
        <source>Blanks separate the parameters. Each mark becomes the name of the copy of a project: %0 of the project in front, %1 of the first open project, %2 of the second, and so on. At least one mark is needed.</source>
        <translation>Leerzeichen trennen die Parameter. Jede Marke wird zum Namen der Kopie eines Projekts: %0 des Projekts im Vordergrund, %1 des ersten offenen Projekts, %2 des zweiten und so weiter. Mindestens eine Marke ist nötig.</translation>
    </message>
</context>
<context>
    <name>App::FamilyPaletteEditor</name>
    <message>
        <source>Two numbers are needed, as in &quot;1,2&quot;. Group and number:</source>
        <translation>Es braucht zwei Zahlen, wie in &quot;1,2&quot;. Gruppe und Nummer:</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Group and number:</source>
        <translation>Gruppe und Nummer:</translation>
    </message>
    <message>
        <source>Add palettes</source>
        <translation>Paletten hinzufügen</translation>
    </message>
    <message>
        <source>Group and number of the first palette:</source>
        <translation>Gruppe und Nummer der ersten Palette:</translation>
    </message>
    <message>
        <source>The order of the colours:</source>
        <translation>Die Reihenfolge der Farben:</translation>
    </message>
    <message>
        <source>As it is in the file</source>
        <translation>Wie in der Datei</translation>
    </message>
    <message>
        <source>Reversed: the last colour becomes the first</source>
        <translation>Umgekehrt: die letzte Farbe wird die erste</translation>
    </message>
    <message>
        <source>Reorder palette</source>
        <translation>Palette umordnen</translation>
    </message>
</context>
<context>
    <name>App::FamilySoundEditor</name>
    <message>
        <source>Add sounds</source>
        <translation>Klänge hinzufügen</translation>
    </message>
    <message>
        <source>Take all frames that are there?</source>
        <translation>Alle vorhandenen Frames nehmen?</translation>
    </message>
</context>
<context>
    <name>App::FileSaving</name>
    <message>
        <source>%1 is saved.</source>
        <translation>%1 ist gespeichert.</translation>
    </message>
</context>
<context>
    <name>App::FileStates</name>
    <message>
        <source>(missing)</source>
        <translation>(fehlt)</translation>
    </message>
    <message>
        <source>Keep the changes here</source>
        <translation>Die Änderungen hier behalten</translation>
    </message>
    <message>
        <source>Read the file, and drop the changes here</source>
        <translation>Die Datei lesen und die Änderungen hier verwerfen</translation>
    </message>
    <message>
        <source>Compare...</source>
        <translation>Vergleichen...</translation>
    </message>
    <message>
        <source>File modified</source>
        <translation>Datei geändert</translation>
    </message>
    <message>
        <source>Write over it</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>%1 was changed by another program or in another project, and has unsaved changes here.</source>
        <translation>%1 wurde von einem anderen Programm oder in einem anderen Projekt geändert und hat hier ungespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>%1 was changed by another program or in another project after it was read or saved here. Saving writes over those changes.</source>
        <translation>%1 wurde von einem anderen Programm oder in einem anderen Projekt geändert, nachdem es hier gelesen oder gespeichert worden war. Speichern überschreibt diese Änderungen.</translation>
    </message>
</context>
<context>
    <name>App::FindBar</name>
    <message>
        <source>Upper and lower case are not the same</source>
        <translation>Groß- und Kleinschreibung unterscheiden</translation>
    </message>
    <message>
        <source>Whole words only</source>
        <translation>Nur ganze Wörter</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Previous match</source>
        <translation>Voriger Treffer</translation>
    </message>
    <message>
        <source>Next match</source>
        <translation>Nächster Treffer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Replace and go to the next match</source>
        <translation>Ersetzen und zum nächsten Treffer gehen</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Ersetzen durch:</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Gesuchter Text</translation>
    </message>
    <message>
        <source>Text to put in its place</source>
        <translation>Text, der an seine Stelle kommt</translation>
    </message>
    <message>
        <source>With a regular expression \1 to \99 are what its groups have found, \n is a line end, \t a tab</source>
        <translation>Bei einem regulären Ausdruck stehen \1 bis \99 für das, was seine Gruppen gefunden haben, \n für ein Zeilenende, \t für einen Tabulator</translation>
    </message>
</context>
<context>
    <name>App::FindInFiles</name>
    <message>
        <source>Find:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>Text to find in the files of the game</source>
        <translation>Gesuchter Text in den Dateien des Spiels</translation>
    </message>
    <message>
        <source>Text to put in its place</source>
        <translation>Text, der an seine Stelle kommt</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>With a regular expression \1 to \99 are what its groups have found, \n is a line end, \t a tab</source>
        <translation>Bei einem regulären Ausdruck sind \1 bis \99, was seine Gruppen gefunden haben, \n ein Zeilenende, \t ein Tabulator</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace all places that are ticked</source>
        <translation>Alle angehakten Stellen ersetzen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stop searching; what was found stays</source>
        <translation>Die Suche anhalten; was gefunden ist, bleibt</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Kinds of files in which to search</source>
        <translation>Arten von Dateien, in denen gesucht wird</translation>
    </message>
    <message>
        <source>Places in the files of the game</source>
        <translation>Stellen in den Dateien des Spiels</translation>
    </message>
    <message>
        <source>Upper and lower case are not the same</source>
        <translation>Groß- und Kleinschreibung unterscheiden</translation>
    </message>
    <message>
        <source>Whole words only</source>
        <translation>Nur ganze Wörter</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message numerus="yes">
        <source>%n place(s)</source>
        <translation>
            <numerusform>%n Stelle</numerusform>
            <numerusform>%n Stellen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n file(s)</source>
        <translation>
            <numerusform>in %n Datei</numerusform>
            <numerusform>in %n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Searching... %1</source>
        <translation>Sucht... %1</translation>
    </message>
    <message>
        <source>%1. There are more: look for something longer.</source>
        <translation>%1. Es gibt mehr: Suchen Sie etwas Längeres.</translation>
    </message>
    <message>
        <source>%1. The search was stopped.</source>
        <translation>%1. Die Suche wurde angehalten.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n place(s)</source>
        <translation>
            <numerusform>%n Stelle</numerusform>
            <numerusform>%n Stellen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n file(s)?</source>
        <translation>
            <numerusform>in %n Datei ersetzen?</numerusform>
            <numerusform>in %n Dateien ersetzen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of these are not open. They are written at once, and no undo takes that back.</source>
        <translation>
            <numerusform>%n Datei davon ist nicht offen. Sie wird sofort geschrieben, und kein Rückgängig nimmt das zurück.</numerusform>
            <numerusform>%n Dateien davon sind nicht offen. Sie werden sofort geschrieben, und kein Rückgängig nimmt das zurück.</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace in files</source>
        <translation>In Dateien ersetzen</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n place(s) replaced</source>
        <translation>
            <numerusform>%n Stelle</numerusform>
            <numerusform>%n Stellen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n file(s). These stay as they are:</source>
        <translation>
            <numerusform>in %n Datei ersetzt. Diese bleiben, wie sie sind:</numerusform>
            <numerusform>in %n Dateien ersetzt. Diese bleiben, wie sie sind:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::FindSearch</name>
    <message>
        <source>from the start</source>
        <translation>vom Anfang an</translation>
    </message>
    <message>
        <source>from the end</source>
        <translation>vom Ende an</translation>
    </message>
    <message>
        <source>%1 replaced</source>
        <translation>%1 ersetzt</translation>
    </message>
    <message>
        <source>%1 of ...</source>
        <translation>%1 von ...</translation>
    </message>
    <message>
        <source>No matches</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>%1 of more than %2</source>
        <translation>%1 von mehr als %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>more than %n match(es)</source>
        <translation>
            <numerusform>mehr als %n Treffer</numerusform>
            <numerusform>mehr als %n Treffer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n match(es)</source>
        <translation>
            <numerusform>%n Treffer</numerusform>
            <numerusform>%n Treffer</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::GameCommands</name>
    <message>
        <source>Back up</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>The backup is in %1.</source>
        <translation>Die Sicherung liegt in %1.</translation>
    </message>
    <message>
        <source>Restore backup</source>
        <translation>Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>The backup is restored.</source>
        <translation>Die Sicherung ist wiederhergestellt.</translation>
    </message>
    <message>
        <source>The backup is restored. What it replaced is in %1.</source>
        <translation>Die Sicherung ist wiederhergestellt. Was sie ersetzt hat, liegt in %1.</translation>
    </message>
    <message>
        <source>These could not be copied:</source>
        <translation>Diese konnten nicht kopiert werden:</translation>
    </message>
    <message>
        <source>These are named by a project and not there:</source>
        <translation>Diese werden von einem Projekt genannt und sind nicht da:</translation>
    </message>
    <message>
        <source>Given up.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Save all as</source>
        <translation>Alles speichern unter</translation>
    </message>
    <message>
        <source>%1 lies in the folder of the game. Choose a folder outside of it.</source>
        <translation>%1 liegt im Ordner des Spiels. Bitte einen Ordner außerhalb wählen.</translation>
    </message>
    <message>
        <source>There are files in %1. Those with the names of files of the game are overwritten. Save there?</source>
        <translation>In %1 liegen Dateien. Die mit Namen von Dateien des Spiels werden überschrieben. Dort speichern?</translation>
    </message>
    <message>
        <source>These files could not be written:</source>
        <translation>Diese Dateien konnten nicht geschrieben werden:</translation>
    </message>
    <message>
        <source>All is saved in %1.</source>
        <translation>Alles ist in %1 gespeichert.</translation>
    </message>
    <message>
        <source>Given up; the work goes on in %1.</source>
        <translation>Abgebrochen; die Arbeit geht in %1 weiter.</translation>
    </message>
    <message>
        <source>The game could not be saved there. The work goes on in %1.</source>
        <translation>Das Spiel konnte dort nicht gespeichert werden. Die Arbeit geht in %1 weiter.</translation>
    </message>
    <message>
        <source>%1 was changed in several projects in different ways. Save it first, and choose what stays.</source>
        <translation>%1 wurde in mehreren Projekten unterschiedlich geändert. Speichern Sie zuerst und wählen Sie, was bleibt.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::GameOpener</name>
    <message>
        <source>Open game folder</source>
        <translation>Spielordner öffnen</translation>
    </message>
    <message>
        <source>All files are saved.</source>
        <translation>Alle Dateien sind gespeichert.</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>%1 cannot be shown: no project names it as a code file.</source>
        <translation>%1 kann nicht gezeigt werden: Kein Projekt nennt die Datei als Code-Datei.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>There is no file %1. Correct the path in the main file of the project, or put the file there.</source>
        <translation>Die Datei %1 gibt es nicht. Bitte den Pfad in der Hauptdatei des Projekts berichtigen oder die Datei dort ablegen.</translation>
    </message>
</context>
<context>
    <name>App::GameSession</name>
    <message>
        <source>There is no folder %1. Choose another one.</source>
        <translation>Den Ordner %1 gibt es nicht. Bitte einen anderen wählen.</translation>
    </message>
    <message>
        <source>%1 is not a folder. Choose the folder of a game.</source>
        <translation>%1 ist kein Ordner. Bitte den Ordner eines Spiels wählen.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read. Check its permissions.</source>
        <translation>Der Ordner %1 kann nicht gelesen werden. Bitte seine Rechte prüfen.</translation>
    </message>
    <message>
        <source>There is no project in %1. A game has a file such as &apos;characters/ryn/ryn.character&apos; or &apos;stages/dojo/dojo.stage&apos;.</source>
        <translation>In %1 ist kein Projekt. Zu einem Spiel gehört eine Datei wie &apos;characters/ryn/ryn.character&apos; oder &apos;stages/dojo/dojo.stage&apos;.</translation>
    </message>
    <message>
        <source>No game is open.</source>
        <translation>Es ist kein Spiel geöffnet.</translation>
    </message>
</context>
<context>
    <name>App::GameTree</name>
    <message>
        <source>Projects and files of the game</source>
        <translation>Projekte und Dateien des Spiels</translation>
    </message>
</context>
<context>
    <name>App::Hearing</name>
    <message>
        <source>Save sounds as</source>
        <translation>Klänge speichern unter</translation>
    </message>
    <message>
        <source>Remove sounds</source>
        <translation>Klänge entfernen</translation>
    </message>
</context>
<context>
    <name>App::HueDialog</name>
    <message>
        <source>Shift hue</source>
        <translation>Farbton verschieben</translation>
    </message>
    <message numerus="yes">
        <source>%n selected slot(s)</source>
        <translation>
            <numerusform>%n gewählter Platz</numerusform>
            <numerusform>%n gewählte Plätze</numerusform>
        </translation>
    </message>
    <message>
        <source>All slots: none is selected.</source>
        <translation>Alle Plätze: keiner ist gewählt.</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>&amp;Degrees:</source>
        <translation>&amp;Grad:</translation>
    </message>
</context>
<context>
    <name>App::ImageListModel</name>
    <message>
        <source>%1, the next free number: the name tells none</source>
        <translation>%1, die nächste freie Nummer: Der Name nennt keine</translation>
    </message>
    <message>
        <source>%1, the next free number: that of the name is taken</source>
        <translation>%1, die nächste freie Nummer: Die des Namens ist vergeben</translation>
    </message>
    <message>
        <source>%1, in place of the sprite there</source>
        <translation>%1, anstelle des vorhandenen Sprites</translation>
    </message>
    <message>
        <source>%1, the same picture as &apos;%2&apos;</source>
        <translation>%1, dasselbe Bild wie „%2“</translation>
    </message>
    <message>
        <source>the name tells no number</source>
        <translation>Der Name nennt keine Nummer</translation>
    </message>
    <message>
        <source>%1 is taken</source>
        <translation>%1 ist vergeben</translation>
    </message>
    <message>
        <source>%1 is taken by &apos;%2&apos;</source>
        <translation>%1 ist von „%2“ vergeben</translation>
    </message>
    <message>
        <source>no number is left in the group</source>
        <translation>In der Gruppe ist keine Nummer mehr frei</translation>
    </message>
</context>
<context>
    <name>App::ImagesDialog</name>
    <message>
        <source>Add images</source>
        <translation>Bilder hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Files...</source>
        <translation>&amp;Dateien...</translation>
    </message>
    <message>
        <source>F&amp;older...</source>
        <translation>&amp;Ordner...</translation>
    </message>
    <message>
        <source>More images, or the JSON file of a sheet</source>
        <translation>Weitere Bilder oder die JSON-Datei eines Bogens</translation>
    </message>
    <message>
        <source>All images of a folder</source>
        <translation>Alle Bilder eines Ordners</translation>
    </message>
    <message>
        <source>Images and sheets</source>
        <translation>Bilder und Bögen</translation>
    </message>
    <message>
        <source>Add all images of a folder</source>
        <translation>Alle Bilder eines Ordners hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s)</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>(more are being read)</source>
        <translation>(weitere werden gelesen)</translation>
    </message>
    <message numerus="yes">
        <source>%n of them get(s) the next free number.</source>
        <translation>
            <numerusform>%n davon bekommt die nächste freie Nummer.</numerusform>
            <numerusform>%n davon bekommen die nächste freie Nummer.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them cannot come so: see the red ones.</source>
        <translation>
            <numerusform>%n davon kann so nicht kommen: das rote.</numerusform>
            <numerusform>%n davon können so nicht kommen: die roten.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 × %3, axis %4,%5</source>
        <translation>%1: %2 × %3, Achse %4,%5</translation>
    </message>
</context>
<context>
    <name>App::ImportForm</name>
    <message>
        <source>&amp;Cut off what does not show</source>
        <translation>Unsich&amp;tbare Ränder abschneiden</translation>
    </message>
    <message>
        <source>&amp;Make an animation of them</source>
        <translation>Eine &amp;Animation daraus machen</translation>
    </message>
    <message>
        <source>As their names tell</source>
        <translation>Wie ihre Namen sagen</translation>
    </message>
    <message>
        <source>One after the other</source>
        <translation>Der Reihe nach</translation>
    </message>
    <message>
        <source>{group} and {number} are digits at the end of the name, * is any text. Without {group} the group below counts, without {number} the next free one.</source>
        <translation>{group} und {number} sind Ziffern am Ende des Namens, * ist beliebiger Text. Ohne {group} gilt die Gruppe unten, ohne {number} die nächste freie Nummer.</translation>
    </message>
    <message>
        <source>Of images whose names tell none</source>
        <translation>Von Bildern, deren Namen keine nennen</translation>
    </message>
    <message>
        <source>Next free number</source>
        <translation>Nächste freie Nummer</translation>
    </message>
    <message>
        <source>Replace the sprite there</source>
        <translation>Das vorhandene Sprite ersetzen</translation>
    </message>
    <message>
        <source>&amp;Numbers:</source>
        <translation>&amp;Nummern:</translation>
    </message>
    <message>
        <source>Pattern of na&amp;mes:</source>
        <translation>&amp;Muster der Namen:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Gruppe:</translation>
    </message>
    <message>
        <source>Fir&amp;st number:</source>
        <translation>E&amp;rste Nummer:</translation>
    </message>
    <message>
        <source>Numbers that are &amp;taken:</source>
        <translation>&amp;Vergebene Nummern:</translation>
    </message>
    <message>
        <source>As the file tells, else bottom middle</source>
        <translation>Wie die Datei sagt, sonst unten Mitte</translation>
    </message>
    <message>
        <source>Moves the axis to the right</source>
        <translation>Verschiebt die Achse nach rechts</translation>
    </message>
    <message>
        <source>Moves the axis down</source>
        <translation>Verschiebt die Achse nach unten</translation>
    </message>
    <message>
        <source>A&amp;xis:</source>
        <translation>Ach&amp;se:</translation>
    </message>
    <message>
        <source>Mo&amp;ved by:</source>
        <translation>Vers&amp;choben um:</translation>
    </message>
    <message>
        <source>Each image its own</source>
        <translation>Jedes Bild seine eigene</translation>
    </message>
    <message>
        <source>A new one for all</source>
        <translation>Eine neue für alle</translation>
    </message>
    <message>
        <source>Palette %1 for all</source>
        <translation>Palette %1 für alle</translation>
    </message>
    <message>
        <source> colours</source>
        <translation> Farben</translation>
    </message>
    <message>
        <source>Colours of the new palette</source>
        <translation>Farben der neuen Palette</translation>
    </message>
    <message>
        <source>&amp;Palette:</source>
        <translation>&amp;Palette:</translation>
    </message>
    <message>
        <source> ticks</source>
        <translation> Ticks</translation>
    </message>
    <message>
        <source>A tick is 1/60 of a second</source>
        <translation>Ein Tick ist 1/60 Sekunde</translation>
    </message>
    <message>
        <source>&amp;Identifier:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Each frame:</source>
        <translation>&amp;Jedes Einzelbild:</translation>
    </message>
    <message>
        <source>It comes to the end of %1.</source>
        <translation>Sie kommt an das Ende von %1.</translation>
    </message>
    <message>
        <source>As the file tells</source>
        <translation>Wie die Datei sagt</translation>
    </message>
</context>
<context>
    <name>App::KeySheet</name>
    <message>
        <source>Keys of Zorv</source>
        <translation>Tasten von Zorv</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Weitere</translation>
    </message>
</context>
<context>
    <name>App::KeyTable</name>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Clashes with</source>
        <translation>Belegt auch</translation>
    </message>
</context>
<context>
    <name>App::KeysDialog</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Type a part of an action</source>
        <translation>Ein Teil einer Aktion</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Save as &amp;PDF...</source>
        <translation>Als &amp;PDF speichern ...</translation>
    </message>
    <message>
        <source>Save as &amp;HTML...</source>
        <translation>Als &amp;HTML speichern ...</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF-Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>HTML page (*.html)</source>
        <translation>HTML-Seite (*.html)</translation>
    </message>
    <message>
        <source>Save the keys</source>
        <translation>Tasten speichern</translation>
    </message>
</context>
<context>
    <name>App::KeysPage</name>
    <message>
        <source>Find an action or a key</source>
        <translation>Aktion oder Taste suchen</translation>
    </message>
    <message>
        <source>Actions and keys</source>
        <translation>Aktionen und Tasten</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>&amp;Taste:</translation>
    </message>
    <message>
        <source>&amp;No key</source>
        <translation>&amp;Keine Taste</translation>
    </message>
    <message>
        <source>&amp;Default key</source>
        <translation>&amp;Vorgabe</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
</context>
<context>
    <name>App::LessonView</name>
    <message>
        <source>First lesson</source>
        <translation>Erste Lektion</translation>
    </message>
</context>
<context>
    <name>App::MainWindow</name>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Engine output</source>
        <translation>Ausgabe der Engine</translation>
    </message>
    <message>
        <source>A double click in the tree of projects shows a text.</source>
        <translation>Ein Doppelklick im Baum der Projekte zeigt einen Text.</translation>
    </message>
    <message>
        <source>Close panel %1</source>
        <translation>Bereich %1 schließen</translation>
    </message>
    <message>
        <source>Detach panel %1</source>
        <translation>Bereich %1 ablösen</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Costumes</source>
        <translation>Kostüme</translation>
    </message>
    <message>
        <source>Find in files</source>
        <translation>In Dateien suchen</translation>
    </message>
    <message>
        <source>References</source>
        <translation>Verwendungen</translation>
    </message>
</context>
<context>
    <name>App::MediaDialogs</name>
    <message>
        <source>Given up.</source>
        <translation>Abgebrochen.</translation>
    </message>
</context>
<context>
    <name>App::Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation>&amp;Animation</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Sp&amp;rites</source>
        <translation>Sp&amp;rites</translation>
    </message>
    <message>
        <source>Pa&amp;lettes</source>
        <translation>Pa&amp;letten</translation>
    </message>
    <message>
        <source>S&amp;ounds</source>
        <translation>&amp;Klänge</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Code</source>
        <translation>&amp;Code</translation>
    </message>
    <message>
        <source>&amp;Frame</source>
        <translation>&amp;Einzelbild</translation>
    </message>
    <message>
        <source>Contact &amp;boxes</source>
        <translation>Kontakt&amp;boxen</translation>
    </message>
    <message>
        <source>&amp;Painting</source>
        <translation>&amp;Malen</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>&amp;Ebenen</translation>
    </message>
    <message>
        <source>Sele&amp;ction</source>
        <translation>Aus&amp;wahl</translation>
    </message>
    <message>
        <source>Colour bl&amp;indness</source>
        <translation>Far&amp;benblindheit</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
</context>
<context>
    <name>App::MessagePanel</name>
    <message>
        <source>Problems of the game</source>
        <translation>Probleme des Spiels</translation>
    </message>
</context>
<context>
    <name>App::NewAnimationDialog</name>
    <message>
        <source>New animation</source>
        <translation>Neue Animation</translation>
    </message>
    <message>
        <source>In front of %1</source>
        <translation>Vor %1</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>Am Ende</translation>
    </message>
    <message>
        <source>&amp;Identifier:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>&amp;Platz:</translation>
    </message>
</context>
<context>
    <name>App::NewCommands</name>
    <message>
        <source>%1 is made.</source>
        <translation>%1 ist angelegt.</translation>
    </message>
</context>
<context>
    <name>App::NewDialog</name>
    <message>
        <source>New game</source>
        <translation>Neues Spiel</translation>
    </message>
    <message>
        <source>New character</source>
        <translation>Neue Figur</translation>
    </message>
    <message>
        <source>New stage</source>
        <translation>Neue Bühne</translation>
    </message>
    <message>
        <source>New file</source>
        <translation>Neue Datei</translation>
    </message>
    <message>
        <source>Code: moves, constants, palettes</source>
        <translation>Code: Aktionen, Konstanten, Paletten</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Kommandos</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Anlegen</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>First &amp;character:</source>
        <translation>Erste &amp;Figur:</translation>
    </message>
    <message>
        <source>First &amp;stage:</source>
        <translation>Erste &amp;Bühne:</translation>
    </message>
    <message>
        <source>&amp;Write it into [files] of %1</source>
        <translation>In [files] von %1 ein&amp;tragen</translation>
    </message>
    <message>
        <source>C&amp;hoose...</source>
        <translation>&amp;Wählen...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Einen Ordner wählen</translation>
    </message>
    <message>
        <source>In &amp;folder:</source>
        <translation>Im &amp;Ordner:</translation>
    </message>
    <message>
        <source>In folder</source>
        <translation>Im Ordner</translation>
    </message>
    <message>
        <source>(usual)</source>
        <translation>(übliche)</translation>
    </message>
    <message>
        <source>&amp;Template:</source>
        <translation>&amp;Vorlage:</translation>
    </message>
    <message>
        <source>That is there already. Choose another name.</source>
        <translation>Das gibt es schon. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>Creates %1</source>
        <translation>Legt %1 an</translation>
    </message>
</context>
<context>
    <name>App::OutputPanel</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected text, or all</source>
        <translation>Kopiert den gewählten Text oder alles</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Remove all lines</source>
        <translation>Entfernt alle Zeilen</translation>
    </message>
    <message>
        <source>Engine output</source>
        <translation>Ausgabe der Engine</translation>
    </message>
    <message>
        <source>(%1 are left out)</source>
        <translation>(%1 sind ausgelassen)</translation>
    </message>
</context>
<context>
    <name>App::PaletteTools</name>
    <message>
        <source>Sort colours</source>
        <translation>Farben sortieren</translation>
    </message>
    <message>
        <source>Make a ramp</source>
        <translation>Farbverlauf anlegen</translation>
    </message>
    <message>
        <source>Shift hue</source>
        <translation>Farbton verschieben</translation>
    </message>
    <message>
        <source>Replace colour</source>
        <translation>Farbe ersetzen</translation>
    </message>
    <message numerus="yes">
        <source>%n slot(s) have the new colour.</source>
        <translation>
            <numerusform>%n Platz hat die neue Farbe.</numerusform>
            <numerusform>%n Plätze haben die neue Farbe.</numerusform>
        </translation>
    </message>
    <message>
        <source>Count uses of colours</source>
        <translation>Verwendungen der Farben zählen</translation>
    </message>
</context>
<context>
    <name>App::PaletteUsage</name>
    <message numerus="yes">
        <source>%n sprite(s), pixels: %1</source>
        <translation>
            <numerusform>%n Sprite, Pixel: %1</numerusform>
            <numerusform>%n Sprites, Pixel: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Slot %1: %2</source>
        <translation>Platz %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n slot(s) are used.</source>
        <translation>
            <numerusform>%n Platz wird verwendet.</numerusform>
            <numerusform>%n Plätze werden verwendet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected slot(s), pixels: %1</source>
        <translation>
            <numerusform>%n gewählter Platz, Pixel: %1</numerusform>
            <numerusform>%n gewählte Plätze, Pixel: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) have palette %1.</source>
        <translation>
            <numerusform>%n Sprite hat die Palette %1.</numerusform>
            <numerusform>%n Sprites haben die Palette %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::PathField</name>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Choose a program</source>
        <translation>Programm wählen</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Pictures (*.png *.bmp *.gif *.svg *.ico)</source>
        <translation>Bilder (*.png *.bmp *.gif *.svg *.ico)</translation>
    </message>
</context>
<context>
    <name>App::ProblemWatch</name>
    <message>
        <source>new file %1</source>
        <translation>neue Datei %1</translation>
    </message>
    <message numerus="yes">
        <source>What is to be removed is used in %n place(s):</source>
        <translation>
            <numerusform>Was entfernt werden soll, wird an %n Stelle verwendet:</numerusform>
            <numerusform>Was entfernt werden soll, wird an %n Stellen verwendet:</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is still being checked, so there may be more.</source>
        <translation>Das Spiel wird noch geprüft, es können also mehr sein.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove it all the same?</source>
        <translation>Trotzdem entfernen?</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Nicht geprüft</translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation>Wird geprüft ...</translation>
    </message>
    <message>
        <source>No problems</source>
        <translation>Keine Probleme</translation>
    </message>
    <message>
        <source>The game is still being checked: what uses it is not known.</source>
        <translation>Das Spiel wird noch geprüft: Es ist nicht bekannt, was dies verwendet.</translation>
    </message>
</context>
<context>
    <name>App::QuickFixes</name>
    <message>
        <source>There is no quick fix here.</source>
        <translation>Hier gibt es nichts schnell zu beheben.</translation>
    </message>
    <message>
        <source>&amp;Go to</source>
        <translation>&amp;Hingehen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Quick fix</source>
        <translation>Schnell beheben</translation>
    </message>
    <message>
        <source>%1 has changed meanwhile. Try again.</source>
        <translation>%1 hat sich inzwischen geändert. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>%1 was created.</source>
        <translation>%1 wurde angelegt.</translation>
    </message>
    <message>
        <source>%1 cannot take %2. Open it, and look at what it has.</source>
        <translation>%1 kann %2 nicht aufnehmen. Öffnen Sie die Datei, und sehen Sie nach, was sie hat.</translation>
    </message>
</context>
<context>
    <name>App::RampDialog</name>
    <message>
        <source>RGB: the numbers in even steps</source>
        <translation>RGB: die Zahlen in gleichen Schritten</translation>
    </message>
    <message>
        <source>HSV: along the circle of hues</source>
        <translation>HSV: entlang dem Farbkreis</translation>
    </message>
    <message>
        <source>OKLab: as the eye sees it</source>
        <translation>OKLab: wie das Auge es sieht</translation>
    </message>
    <message>
        <source>Make a ramp</source>
        <translation>Farbverlauf anlegen</translation>
    </message>
    <message>
        <source>The slots from %1 to %2 become even steps between the two.</source>
        <translation>Die Plätze von %1 bis %2 werden gleiche Schritte zwischen den beiden.</translation>
    </message>
    <message>
        <source>&amp;Mixed in:</source>
        <translation>Ge&amp;mischt in:</translation>
    </message>
    <message>
        <source>In &amp;all palettes of the file, each between its own two</source>
        <translation>In &amp;allen Paletten der Datei, je zwischen ihren eigenen beiden</translation>
    </message>
</context>
<context>
    <name>App::RecentMenu</name>
    <message>
        <source>&amp;Recent game folders</source>
        <translation>&amp;Zuletzt geöffnete Spielordner</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>App::RecoveryDialog</name>
    <message>
        <source>new file (%1)</source>
        <translation>neue Datei (%1)</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Save the copy &amp;as...</source>
        <translation>Kopie speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Last change put aside</source>
        <translation>Zuletzt gesichert</translation>
    </message>
    <message>
        <source>Decision</source>
        <translation>Entscheidung</translation>
    </message>
    <message>
        <source>Restore a&amp;ll</source>
        <translation>&amp;Alle wiederherstellen</translation>
    </message>
    <message>
        <source>Save the copy as</source>
        <translation>Kopie speichern unter</translation>
    </message>
    <message>
        <source>What restoring changes:</source>
        <translation>Das ändert die Wiederherstellung:</translation>
    </message>
    <message>
        <source>Cannot be applied: the file is no longer there. The copy can be saved under another name.</source>
        <translation>Nicht anwendbar: Die Datei ist nicht mehr da. Die Kopie kann unter einem anderen Namen gespeichert werden.</translation>
    </message>
    <message>
        <source>Cannot be applied: %1</source>
        <translation>Nicht anwendbar: %1</translation>
    </message>
    <message>
        <source>the file</source>
        <translation>die Datei</translation>
    </message>
    <message>
        <source>sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Unsaved work</source>
        <translation>Ungespeicherte Arbeit</translation>
    </message>
    <message>
        <source>Zorv ended before this work was saved. Restoring brings it back as unsaved changes; no file is written.</source>
        <translation>Zorv wurde beendet, bevor diese Arbeit gespeichert war. Beim Wiederherstellen kommt sie als ungespeicherte Änderung zurück; keine Datei wird geschrieben.</translation>
    </message>
    <message>
        <source>Cannot be applied: the file was changed after this work had begun. The copy can be saved under another name.</source>
        <translation>Nicht anwendbar: Die Datei wurde geändert, nachdem diese Arbeit begonnen hatte. Die Kopie kann unter einem anderen Namen gespeichert werden.</translation>
    </message>
    <message>
        <source>the unsaved work</source>
        <translation>die ungespeicherte Arbeit</translation>
    </message>
    <message>
        <source>%1 (canvas)</source>
        <translation>%1 (Zeichenfläche)</translation>
    </message>
</context>
<context>
    <name>App::ReferenceCommands</name>
    <message>
        <source>There is no name in this line.</source>
        <translation>In dieser Zeile steht kein Name.</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos;: places %3</source>
        <comment>kind, name, number</comment>
        <translation>%1 &apos;%2&apos;: Stellen %3</translation>
    </message>
    <message>
        <source>Rename &apos;%1&apos; to &apos;%2&apos;</source>
        <translation>&apos;%1&apos; in &apos;%2&apos; umbenennen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>These files have changes that are not saved: %1. Save them first, or take the rename back in each of them by Undo.</source>
        <translation>Diese Dateien haben Änderungen, die nicht gespeichert sind: %1. Bitte sie erst speichern oder das Umbenennen in jeder durch Rückgängig zurücknehmen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is called &apos;%2&apos; now.</source>
        <translation>&apos;%1&apos; heißt jetzt &apos;%2&apos;.</translation>
    </message>
</context>
<context>
    <name>App::ReferencePanel</name>
    <message>
        <source>Places that name something</source>
        <translation>Stellen, die etwas nennen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>line number, text</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Here it gets its name</source>
        <translation>Hier bekommt es seinen Namen</translation>
    </message>
    <message>
        <source>Names it</source>
        <translation>Nennt es</translation>
    </message>
    <message>
        <source>Put the cursor on a name in the text and choose Find references.</source>
        <translation>Bitte den Cursor im Text auf einen Namen setzen und &apos;Verwendungen finden&apos; wählen.</translation>
    </message>
</context>
<context>
    <name>App::RenameDialog</name>
    <message>
        <source>Rename everywhere</source>
        <translation>Überall umbenennen</translation>
    </message>
    <message>
        <source>&amp;New name for &apos;%1&apos;:</source>
        <translation>&amp;Neuer Name für &apos;%1&apos;:</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Was sich ändert</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::RestoreDialog</name>
    <message>
        <source>comes back</source>
        <translation>kommt zurück</translation>
    </message>
    <message>
        <source>is replaced</source>
        <translation>wird ersetzt</translation>
    </message>
    <message>
        <source>Restore backup</source>
        <translation>Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Files that the backup lacks stay as they are. What is replaced is kept in a backup of its own first.</source>
        <translation>Dateien, die der Sicherung fehlen, bleiben wie sie sind. Was ersetzt wird, kommt zuvor in eine eigene Sicherung.</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Restoring</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>Files that would change</source>
        <translation>Dateien, die sich ändern würden</translation>
    </message>
    <message>
        <source>There is no backup of this game.</source>
        <translation>Von diesem Spiel gibt es keine Sicherung.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n file(s) differ from those on the disk:</source>
        <translation>
            <numerusform>%1 von %n Datei unterscheidet sich von der auf dem Datenträger:</numerusform>
            <numerusform>%1 von %n Dateien unterscheiden sich von denen auf dem Datenträger:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::RunCommands</name>
    <message>
        <source>Started: %1</source>
        <translation>Gestartet: %1</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Engine</translation>
    </message>
    <message>
        <source>The engine is still running on the work in this window.</source>
        <translation>Die Engine läuft noch mit der Arbeit dieses Fensters.</translation>
    </message>
    <message>
        <source>End the engine</source>
        <translation>Engine beenden</translation>
    </message>
    <message>
        <source>Ended with code %1.</source>
        <translation>Beendet mit Code %1.</translation>
    </message>
    <message>
        <source>The engine has crashed.</source>
        <translation>Die Engine ist abgestürzt.</translation>
    </message>
    <message>
        <source>Ended by you.</source>
        <translation>Von Hand beendet.</translation>
    </message>
    <message>
        <source>Could not be started: %1</source>
        <translation>Start nicht möglich: %1</translation>
    </message>
    <message>
        <source>The engine ran without these files, which could not be copied for it:</source>
        <translation>Die Engine lief ohne diese Dateien, die nicht für sie kopiert werden konnten:</translation>
    </message>
    <message>
        <source>These temporary copies could not be removed. They are offered for removal at the next start:</source>
        <translation>Diese temporären Kopien konnten nicht entfernt werden. Das wird beim nächsten Start wieder angeboten:</translation>
    </message>
    <message>
        <source>Temporary copies</source>
        <translation>Temporäre Kopien</translation>
    </message>
    <message>
        <source>An earlier run of the engine was cut off. These temporary copies of it are left:</source>
        <translation>Ein früherer Lauf der Engine wurde unterbrochen. Diese temporären Kopien sind von ihm übrig:</translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>These could not be removed:</source>
        <translation>Diese konnten nicht entfernt werden:</translation>
    </message>
    <message>
        <source>The folder of this game has an engine of its own, which would be started:</source>
        <translation>Der Ordner dieses Spiels hat eine eigene Engine, die gestartet würde:</translation>
    </message>
    <message>
        <source>A program can do everything that you can on this computer. Start it only if you trust whoever made it. You are asked again when it has changed.</source>
        <translation>Ein Programm kann alles, was Sie auf diesem Rechner können. Starten Sie es nur, wenn Sie dem vertrauen, der es gemacht hat. Sie werden wieder gefragt, wenn es sich geändert hat.</translation>
    </message>
    <message>
        <source>It has changed since you last agreed to it.</source>
        <translation>Es hat sich geändert, seit Sie ihm zuletzt zugestimmt haben.</translation>
    </message>
    <message>
        <source>Start it?</source>
        <translation>Starten?</translation>
    </message>
    <message>
        <source>%1 cannot be read, so it is not started.</source>
        <translation>%1 kann nicht gelesen werden und wird darum nicht gestartet.</translation>
    </message>
    <message>
        <source>No starts the engine &apos;%1&apos; of the options in its place.</source>
        <translation>Nein startet an seiner Stelle die Engine &apos;%1&apos; der Optionen.</translation>
    </message>
    <message>
        <source>No lets you choose an engine of the options in its place.</source>
        <translation>Nein lässt Sie an seiner Stelle eine Engine der Optionen wählen.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>The player goes on with what is here now.</source>
        <translation>Der Player macht mit dem weiter, was jetzt hier ist.</translation>
    </message>
    <message>
        <source>These files could not be copied for the player, which goes on without what is new in them:</source>
        <translation>Diese Dateien konnten nicht für den Player kopiert werden. Er macht ohne das weiter, was in ihnen neu ist:</translation>
    </message>
</context>
<context>
    <name>App::Screenshot</name>
    <message>
        <source>There is no picture without the game.</source>
        <translation>Ohne das Spiel gibt es kein Bild.</translation>
    </message>
</context>
<context>
    <name>App::Settings</name>
    <message>
        <source>As the system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Show the &amp;organizer</source>
        <translation>&amp;Organisator zeigen</translation>
    </message>
    <message>
        <source>A panel in which animations, sprites and sounds are put in order</source>
        <translation>Eine Leiste, in der Animationen, Sprites und Klänge geordnet werden</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>The language of the window. It changes at once.</source>
        <translation>Die Sprache des Fensters. Sie wechselt sofort.</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Farbschema:</translation>
    </message>
    <message>
        <source>Light or dark colours for the whole window</source>
        <translation>Helle oder dunkle Farben für das ganze Fenster</translation>
    </message>
    <message>
        <source>&amp;Font of code:</source>
        <translation>Sch&amp;rift für Code:</translation>
    </message>
    <message>
        <source>A font whose characters have one width</source>
        <translation>Eine Schrift, deren Zeichen gleich breit sind</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>Size of the font of code</source>
        <translation>Größe der Schrift für Code</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>&amp;Watch for changes on disk</source>
        <translation>Auf Änderungen am Datenträger &amp;achten</translation>
    </message>
    <message>
        <source>Notices when another program changes an open file</source>
        <translation>Bemerkt, wenn ein anderes Programm eine geöffnete Datei ändert</translation>
    </message>
    <message>
        <source>&amp;Back up a project when it is opened</source>
        <translation>Projekt beim Öffnen &amp;sichern</translation>
    </message>
    <message>
        <source>Makes a backup named Auto each time that a project is opened</source>
        <translation>Legt bei jedem Öffnen eines Projekts eine Sicherung namens Auto an</translation>
    </message>
    <message>
        <source>&amp;Sort files that are chosen together</source>
        <translation>Gemeinsam gewählte Dateien s&amp;ortieren</translation>
    </message>
    <message>
        <source>Several files chosen in one dialog come in the order of their names</source>
        <translation>Mehrere in einem Dialog gewählte Dateien kommen in der Reihenfolge ihrer Namen</translation>
    </message>
    <message>
        <source>&amp;Folder of projects:</source>
        <translation>Ordner der &amp;Projekte:</translation>
    </message>
    <message>
        <source>Where dialogs for files begin, as long as no other folder was used</source>
        <translation>Hier beginnen Dateidialoge, solange kein anderer Ordner benutzt wurde</translation>
    </message>
    <message>
        <source>&amp;Colour code and find problems</source>
        <translation>Code &amp;farbig zeigen und prüfen</translation>
    </message>
    <message>
        <source>Shows words, numbers and texts in colours, and lists what is wrong</source>
        <translation>Zeigt Wörter, Zahlen und Texte farbig und listet auf, was falsch ist</translation>
    </message>
    <message>
        <source>The copies are offered after a crash. 0 makes none.</source>
        <translation>Die Kopien werden nach einem Absturz angeboten. Mit 0 gibt es keine.</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Auswählen ...</translation>
    </message>
    <message>
        <source>Show &amp;line numbers</source>
        <translation>&amp;Zeilennummern anzeigen</translation>
    </message>
    <message>
        <source>At the left of the text</source>
        <translation>Links neben dem Text</translation>
    </message>
    <message>
        <source>Show folding &amp;markers</source>
        <translation>&amp;Marken zum Einklappen anzeigen</translation>
    </message>
    <message>
        <source>Marks at the left with which parts of the text are folded</source>
        <translation>Marken am linken Rand, mit denen Teile des Textes eingeklappt werden</translation>
    </message>
    <message>
        <source>&amp;Highlight the current line</source>
        <translation>Aktuelle Zeile &amp;hervorheben</translation>
    </message>
    <message>
        <source>Gives the line of the cursor a ground of its own</source>
        <translation>Gibt der Zeile mit der Schreibmarke einen eigenen Grund</translation>
    </message>
    <message>
        <source>Show the &amp;blocks around the cursor</source>
        <translation>&amp;Blöcke um die Schreibmarke anzeigen</translation>
    </message>
    <message>
        <source>Sets the part of the text in which the cursor is off from the rest</source>
        <translation>Hebt den Teil des Textes, in dem die Schreibmarke steht, vom Rest ab</translation>
    </message>
    <message>
        <source>Show matching brac&amp;kets</source>
        <translation>Zusammengehörige &amp;Klammern anzeigen</translation>
    </message>
    <message>
        <source>At a bracket, the one that belongs to it and what stands between</source>
        <translation>An einer Klammer die zugehörige andere und was dazwischensteht</translation>
    </message>
    <message>
        <source>Show the &amp;tool bar of code</source>
        <translation>&amp;Werkzeugleiste des Codes anzeigen</translation>
    </message>
    <message>
        <source>Snippets and problems, above the text</source>
        <translation>Bausteine und Probleme, über dem Text</translation>
    </message>
    <message>
        <source>&amp;Open only the present branch of the tree</source>
        <translation>Nur den aktuellen Zweig des Baums &amp;öffnen</translation>
    </message>
    <message>
        <source>All others close as the cursor moves through the text</source>
        <translation>Alle anderen schließen sich, wenn sich die Schreibmarke durch den Text bewegt</translation>
    </message>
    <message>
        <source>Current l&amp;ine:</source>
        <translation>Aktuelle Ze&amp;ile:</translation>
    </message>
    <message>
        <source>Ground of the line with the cursor</source>
        <translation>Grund der Zeile mit der Schreibmarke</translation>
    </message>
    <message>
        <source>As the theme</source>
        <translation>Wie das Farbschema</translation>
    </message>
    <message>
        <source>Block a&amp;round the cursor:</source>
        <translation>Block &amp;um die Schreibmarke:</translation>
    </message>
    <message>
        <source>Ground of the innermost block; those around it are set off from it</source>
        <translation>Grund des innersten Blocks; die Blöcke darum setzen sich davon ab</translation>
    </message>
    <message>
        <source>B&amp;etween brackets:</source>
        <translation>Zwis&amp;chen Klammern:</translation>
    </message>
    <message>
        <source>Ground of what stands between two matching brackets</source>
        <translation>Grund dessen, was zwischen zwei zusammengehörigen Klammern steht</translation>
    </message>
    <message>
        <source>Matchin&amp;g brackets:</source>
        <translation>Zusammengehörige K&amp;lammern:</translation>
    </message>
    <message>
        <source>What the brackets themselves are written in</source>
        <translation>Farbe, in der die Klammern selbst geschrieben werden</translation>
    </message>
    <message>
        <source>Keep packed in memory</source>
        <translation>Gepackt im Speicher halten</translation>
    </message>
    <message>
        <source>Keep in a temporary file</source>
        <translation>In einer temporären Datei halten</translation>
    </message>
    <message>
        <source>S&amp;prites and sounds in work:</source>
        <translation>S&amp;prites und Klänge in Arbeit:</translation>
    </message>
    <message>
        <source>Memory is faster; a temporary file leaves memory to others. It counts from the next file that is opened.</source>
        <translation>Der Speicher ist schneller; eine temporäre Datei lässt ihn anderen. Es gilt ab der nächsten Datei, die geöffnet wird.</translation>
    </message>
    <message>
        <source>As at first</source>
        <translation>Wie am Anfang</translation>
    </message>
    <message>
        <source>The two colours</source>
        <translation>Die zwei Farben</translation>
    </message>
    <message>
        <source>A floor with marks</source>
        <translation>Ein Boden mit Marken</translation>
    </message>
    <message>
        <source>A picture</source>
        <translation>Ein Bild</translation>
    </message>
    <message>
        <source>Small crosses</source>
        <translation>Kleine Kreuze</translation>
    </message>
    <message>
        <source>Large crosses</source>
        <translation>Große Kreuze</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Fine, up to 4 times</source>
        <translation>Fein, bis 4-fach</translation>
    </message>
    <message>
        <source>Whole, up to 10 times</source>
        <translation>Ganzzahlig, bis 10-fach</translation>
    </message>
    <message>
        <source>The origin</source>
        <translation>Den Ursprung</translation>
    </message>
    <message>
        <source>The middle of the stage</source>
        <translation>Die Mitte der Bühne</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Wie es ist</translation>
    </message>
    <message>
        <source>In shades of grey</source>
        <translation>In Graustufen</translation>
    </message>
    <message>
        <source>Lighter</source>
        <translation>Heller</translation>
    </message>
    <message>
        <source>Darker</source>
        <translation>Dunkler</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Bühne</translation>
    </message>
    <message>
        <source>Colour at the &amp;top:</source>
        <translation>Farbe &amp;oben:</translation>
    </message>
    <message>
        <source>The ground of the stage goes from this colour to the next. Rulers write in its inverse.</source>
        <translation>Der Grund der Bühne geht von dieser Farbe in die nächste über. Lineale schreiben in ihrer Umkehrung.</translation>
    </message>
    <message>
        <source>Colour at the &amp;bottom:</source>
        <translation>Farbe &amp;unten:</translation>
    </message>
    <message>
        <source>The ground of the stage at its lower edge</source>
        <translation>Der Grund der Bühne an ihrem unteren Rand</translation>
    </message>
    <message>
        <source>Back&amp;ground:</source>
        <translation>&amp;Hintergrund:</translation>
    </message>
    <message>
        <source>What stands on the ground, behind the sprites</source>
        <translation>Was auf dem Grund steht, hinter den Sprites</translation>
    </message>
    <message>
        <source>&amp;Picture of the background:</source>
        <translation>&amp;Bild des Hintergrunds:</translation>
    </message>
    <message>
        <source>Drawn behind the sprites, where the background is a picture</source>
        <translation>Hinter den Sprites gezeichnet, wenn der Hintergrund ein Bild ist</translation>
    </message>
    <message>
        <source>Its left &amp;edge:</source>
        <translation>Sein &amp;linker Rand:</translation>
    </message>
    <message>
        <source>Where the picture begins, from the origin of the stage</source>
        <translation>Wo das Bild beginnt, vom Ursprung der Bühne aus</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Its top e&amp;dge:</source>
        <translation>Sein ob&amp;erer Rand:</translation>
    </message>
    <message>
        <source>&amp;Attack boxes:</source>
        <translation>&amp;Angriffsboxen:</translation>
    </message>
    <message>
        <source>The colour of boxes that hit</source>
        <translation>Die Farbe der Boxen, die treffen</translation>
    </message>
    <message>
        <source>B&amp;ody boxes:</source>
        <translation>&amp;Körperboxen:</translation>
    </message>
    <message>
        <source>The colour of boxes that can be hit</source>
        <translation>Die Farbe der Boxen, die getroffen werden können</translation>
    </message>
    <message>
        <source>&amp;Inside of boxes:</source>
        <translation>&amp;Inneres der Boxen:</translation>
    </message>
    <message>
        <source>How much of a box hides what is behind it</source>
        <translation>Wie stark eine Box verdeckt, was hinter ihr ist</translation>
    </message>
    <message>
        <source>C&amp;rosses:</source>
        <translation>K&amp;reuze:</translation>
    </message>
    <message>
        <source>How axes are marked</source>
        <translation>Wie Achsen markiert werden</translation>
    </message>
    <message>
        <source>Axis of the a&amp;nimation:</source>
        <translation>Achse der A&amp;nimation:</translation>
    </message>
    <message>
        <source>Its middle stands on the axis. Without one it is the small cross.</source>
        <translation>Seine Mitte steht auf der Achse. Ohne Bild ist es das kleine Kreuz.</translation>
    </message>
    <message>
        <source>Axis o&amp;f the sprite:</source>
        <translation>Achse des &amp;Sprites:</translation>
    </message>
    <message>
        <source>E&amp;xtra cross:</source>
        <translation>E&amp;xtrakreuz:</translation>
    </message>
    <message>
        <source>Its middle stands at the place. Without one it is the small cross.</source>
        <translation>Seine Mitte steht an der Stelle. Ohne Bild ist es das kleine Kreuz.</translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation>&amp;Zoom:</translation>
    </message>
    <message>
        <source>The steps in which the stage grows and shrinks</source>
        <translation>Die Schritte, in denen die Bühne wächst und schrumpft</translation>
    </message>
    <message>
        <source>Zoom abo&amp;ut:</source>
        <translation>Zoo&amp;m um:</translation>
    </message>
    <message>
        <source>The place that stays where it is</source>
        <translation>Die Stelle, die bleibt, wo sie ist</translation>
    </message>
    <message>
        <source>Onion s&amp;kin:</source>
        <translation>Z&amp;wiebelhaut:</translation>
    </message>
    <message>
        <source>How another frame is shown behind the present one</source>
        <translation>Wie ein anderes Einzelbild hinter dem jetzigen gezeigt wird</translation>
    </message>
    <message>
        <source>Its opacit&amp;y:</source>
        <translation>Ihre &amp;Deckkraft:</translation>
    </message>
    <message>
        <source>How much of the other frame is seen</source>
        <translation>Wie viel vom anderen Einzelbild zu sehen ist</translation>
    </message>
    <message>
        <source>&amp;Sprites hide guides</source>
        <translation>Sprites &amp;verdecken Hilfslinien</translation>
    </message>
    <message>
        <source>Guides are drawn behind sprites, and the mouse finds sprites first</source>
        <translation>Hilfslinien werden hinter Sprites gezeichnet, und die Maus findet Sprites zuerst</translation>
    </message>
    <message>
        <source>Boxes &amp;hide crosses</source>
        <translation>Boxen verde&amp;cken Kreuze</translation>
    </message>
    <message>
        <source>Boxes are drawn over crosses, and the mouse finds boxes first</source>
        <translation>Boxen werden über Kreuzen gezeichnet, und die Maus findet Boxen zuerst</translation>
    </message>
    <message>
        <source>Comments above an animation go &amp;with it</source>
        <translation>Kommentare über einer Animation &amp;wandern mit</translation>
    </message>
    <message>
        <source>They are moved, sorted, copied and removed with the animation that stands directly below</source>
        <translation>Sie werden mit der Animation direkt darunter verschoben, sortiert, kopiert und entfernt</translation>
    </message>
    <message>
        <source>&amp;Copy unsaved work aside after:</source>
        <translation>&amp;Ungespeicherte Arbeit sichern nach:</translation>
    </message>
    <message>
        <source>The pointer, by the wheel</source>
        <translation>Den Mauszeiger, mit dem Rad</translation>
    </message>
    <message>
        <source>Undo brings them back as well</source>
        <translation>Rückgängig bringt sie auch wieder</translation>
    </message>
    <message>
        <source>Ask before animations, frames and sprites are de&amp;leted</source>
        <translation>Fragen, bevor Animationen, Einzelbilder und Sprites ge&amp;löscht werden</translation>
    </message>
    <message>
        <source>&amp;Undo of painting, at most:</source>
        <translation>&amp;Rückgängig beim Malen, höchstens:</translation>
    </message>
    <message>
        <source>What the steps on a canvas may take of memory. The oldest go first; the last always stays.</source>
        <translation>Wie viel Speicher die Schritte auf einer Leinwand belegen dürfen. Die ältesten gehen zuerst, der letzte bleibt immer.</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Ask the next time</source>
        <translation>Beim nächsten Mal fragen</translation>
    </message>
    <message>
        <source>Pictures, in all palettes</source>
        <translation>Die Bilder, in allen Paletten</translation>
    </message>
    <message>
        <source>Pictures, in that palette</source>
        <translation>Die Bilder, in dieser Palette</translation>
    </message>
    <message>
        <source>The slots that pixels name</source>
        <translation>Die Plätze, die Pixel nennen</translation>
    </message>
    <message>
        <source>A colour that is &amp;moved leaves:</source>
        <translation>Eine verschobene Farbe &amp;lässt:</translation>
    </message>
    <message>
        <source>What stays as it is when a colour of a palette is dragged to another slot</source>
        <translation>Was bleibt, wie es ist, wenn eine Farbe einer Palette an einen anderen Platz gezogen wird</translation>
    </message>
</context>
<context>
    <name>App::SettingsDialog</name>
    <message>
        <source>Pages of settings</source>
        <translation>Seiten der Einstellungen</translation>
    </message>
    <message>
        <source>Shows the defaults of this page</source>
        <translation>Zeigt die Vorgaben dieser Seite</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
</context>
<context>
    <name>App::SortDialog</name>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Chroma</source>
        <translation>Buntheit</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Sort colours</source>
        <translation>Farben sortieren</translation>
    </message>
    <message>
        <source>Pixels go with their colours: pictures look as before.</source>
        <translation>Pixel gehen mit ihren Farben: Bilder sehen aus wie zuvor.</translation>
    </message>
    <message>
        <source>&amp;By:</source>
        <translation>&amp;Nach:</translation>
    </message>
    <message>
        <source>&amp;The other way round</source>
        <translation>&amp;Umgekehrt</translation>
    </message>
    <message>
        <source>Only the &amp;selected slots</source>
        <translation>Nur die &amp;gewählten Plätze</translation>
    </message>
    <message>
        <source>Slot &amp;0, too</source>
        <translation>Auch Platz &amp;0</translation>
    </message>
    <message>
        <source>Trans&amp;parent colours, too</source>
        <translation>Auch &amp;durchsichtige Farben</translation>
    </message>
    <message>
        <source>The same in &amp;all palettes of the file</source>
        <translation>Dasselbe in &amp;allen Paletten der Datei</translation>
    </message>
</context>
<context>
    <name>App::SoundPanel</name>
    <message>
        <source>Sounds of the project</source>
        <translation>Klänge des Projekts</translation>
    </message>
    <message>
        <source>No sound file</source>
        <translation>Keine Klangdatei</translation>
    </message>
    <message>
        <source>Sound %1: %2 Hz, %3 bits, %4, %5 s</source>
        <translation>Klang %1: %2 Hz, %3 Bit, %4, %5 s</translation>
    </message>
    <message>
        <source>mono</source>
        <translation>mono</translation>
    </message>
    <message>
        <source>stereo</source>
        <translation>stereo</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 Kanäle</translation>
    </message>
    <message numerus="yes">
        <source>%n sound(s)</source>
        <translation>
            <numerusform>%n Klang</numerusform>
            <numerusform>%n Klänge</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (animation %2)</source>
        <translation>%1 (Animation %2)</translation>
    </message>
    <message>
        <source>%1: %2, %3, line %4</source>
        <translation>%1: %2, %3, Zeile %4</translation>
    </message>
    <message>
        <source>Moves that play the sound</source>
        <translation>Aktionen, die den Klang spielen</translation>
    </message>
    <message>
        <source>No move of the project plays this sound.</source>
        <translation>Keine Aktion des Projekts spielt diesen Klang.</translation>
    </message>
    <message>
        <source>Played by:</source>
        <translation>Gespielt von:</translation>
    </message>
</context>
<context>
    <name>App::SpriteCommands</name>
    <message>
        <source>Remove sprites</source>
        <translation>Sprites entfernen</translation>
    </message>
</context>
<context>
    <name>App::SpritePanel</name>
    <message>
        <source>No sprite file</source>
        <translation>Keine Spritedatei</translation>
    </message>
    <message>
        <source>Sprite %1: %2 × %3, axis %4,%5</source>
        <translation>Sprite %1: %2 × %3, Achse %4,%5</translation>
    </message>
    <message>
        <source>, palette %1</source>
        <translation>, Palette %1</translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s)</source>
        <translation>
            <numerusform>%n Sprite</numerusform>
            <numerusform>%n Sprites</numerusform>
        </translation>
    </message>
    <message>
        <source>Sprites of the project</source>
        <translation>Sprites des Projekts</translation>
    </message>
</context>
<context>
    <name>App::StageCommands</name>
    <message>
        <source>Smaller (-)</source>
        <translation>Kleiner (-)</translation>
    </message>
    <message>
        <source>One pixel for each of the game (0)</source>
        <translation>Ein Pixel für jeden des Spiels (0)</translation>
    </message>
    <message>
        <source>Larger (+)</source>
        <translation>Größer (+)</translation>
    </message>
    <message>
        <source>Colour %1 of the palette</source>
        <translation>Farbe %1 der Palette</translation>
    </message>
    <message>
        <source>This animation has no frames yet. A line such as &quot;frame 0,0 delay 4&quot; makes one.</source>
        <translation>Diese Animation hat noch keine Einzelbilder. Eine Zeile wie &quot;frame 0,0 delay 4&quot; macht eines.</translation>
    </message>
    <message>
        <source>no sprite %1,%2</source>
        <translation>kein Sprite %1,%2</translation>
    </message>
    <message>
        <source>The frames of animations are shown here. A line such as &quot;animation 0&quot; begins one.</source>
        <translation>Hier erscheinen die Einzelbilder von Animationen. Eine Zeile wie &quot;animation 0&quot; beginnt eine.</translation>
    </message>
</context>
<context>
    <name>App::StageView</name>
    <message>
        <source>The stage cannot be shown: OpenGL does not work on this display. Texts, lists and the time line work as ever. A driver for the graphics card, or Mesa&apos;s software OpenGL, brings the stage back.</source>
        <translation>Die Bühne kann nicht gezeigt werden: OpenGL funktioniert auf diesem Bildschirm nicht. Texte, Listen und die Zeitleiste arbeiten wie immer. Ein Treiber für die Grafikkarte oder das Software-OpenGL von Mesa bringt die Bühne zurück.</translation>
    </message>
</context>
<context>
    <name>App::StartCommands</name>
    <message>
        <source>Open sample game</source>
        <translation>Beispielspiel öffnen</translation>
    </message>
    <message>
        <source>This is your copy of the sample game: %1</source>
        <translation>Das ist Ihre Kopie des Beispielspiels: %1</translation>
    </message>
    <message>
        <source>First lesson</source>
        <translation>Erste Lektion</translation>
    </message>
    <message>
        <source>The documentation is not beside the program. Install the program anew.</source>
        <translation>Die Dokumentation liegt nicht beim Programm. Installieren Sie das Programm neu.</translation>
    </message>
</context>
<context>
    <name>App::StartPage</name>
    <message>
        <source>New game</source>
        <translation>Neues Spiel</translation>
    </message>
    <message>
        <source>A first character that fights, and a stage</source>
        <translation>Eine erste Figur, die kämpft, und eine Bühne</translation>
    </message>
    <message>
        <source>Open a game</source>
        <translation>Ein Spiel öffnen</translation>
    </message>
    <message>
        <source>The folder with its characters and stages</source>
        <translation>Der Ordner mit seinen Figuren und Bühnen</translation>
    </message>
    <message>
        <source>Sample game</source>
        <translation>Beispielspiel</translation>
    </message>
    <message>
        <source>A copy of it, among your documents, to try things out</source>
        <translation>Eine Kopie davon, bei Ihren Dokumenten, zum Ausprobieren</translation>
    </message>
    <message>
        <source>First lesson</source>
        <translation>Erste Lektion</translation>
    </message>
    <message>
        <source>From thirty pictures to a character that fights</source>
        <translation>Von dreißig Bildern zu einer Figur, die kämpft</translation>
    </message>
    <message>
        <source>An editor for characters and stages of two-dimensional fighting games</source>
        <translation>Ein Editor für Figuren und Bühnen zweidimensionaler Kampfspiele</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Anfangen</translation>
    </message>
    <message>
        <source>Recent games</source>
        <translation>Letzte Spiele</translation>
    </message>
    <message>
        <source>Games that you open are listed here.</source>
        <translation>Spiele, die Sie öffnen, stehen dann hier.</translation>
    </message>
</context>
<context>
    <name>App::StatusFields</name>
    <message>
        <source>Not saved yet</source>
        <translation>Noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Missing on disk</source>
        <translation>Auf dem Datenträger nicht da</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Encoding of the file. Click to change it.</source>
        <translation>Kodierung der Datei. Ein Klick ändert sie.</translation>
    </message>
    <message>
        <source>Line and column. Click to go to a line.</source>
        <translation>Zeile und Spalte. Ein Klick führt zu einer Zeile.</translation>
    </message>
    <message>
        <source>Line ends: converted when saved</source>
        <translation>Zeilenenden: beim Speichern umgewandelt</translation>
    </message>
    <message>
        <source>Encoding: %1</source>
        <translation>Kodierung: %1</translation>
    </message>
    <message>
        <source>Problems of the game. Click for the list.</source>
        <translation>Probleme des Spiels. Ein Klick führt zur Liste.</translation>
    </message>
    <message>
        <source>State of the file: %1</source>
        <translation>Zustand der Datei: %1</translation>
    </message>
    <message>
        <source>Place of the pointer on the stage: %1</source>
        <translation>Ort des Zeigers auf der Bühne: %1</translation>
    </message>
    <message>
        <source>sprites modified</source>
        <translation>Sprites geändert</translation>
    </message>
    <message>
        <source>sounds modified</source>
        <translation>Klänge geändert</translation>
    </message>
</context>
<context>
    <name>App::UnsavedWork</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>%1 belongs to several projects, and was changed in them in different ways. The changes of one can be saved; the others are lost.</source>
        <translation>%1 gehört zu mehreren Projekten und wurde in ihnen verschieden geändert. Die Änderungen von einem können gespeichert werden; die anderen gehen verloren.</translation>
    </message>
    <message>
        <source>This file has unsaved changes:</source>
        <translation>Diese Datei hat ungespeicherte Änderungen:</translation>
    </message>
    <message>
        <source>These files have unsaved changes:</source>
        <translation>Diese Dateien haben ungespeicherte Änderungen:</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Alles speichern</translation>
    </message>
    <message>
        <source>Discard the changes</source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>new file</source>
        <translation>neue Datei</translation>
    </message>
    <message>
        <source>Save the file of %1</source>
        <translation>Die Datei von %1 speichern</translation>
    </message>
    <message>
        <source>%1 (no longer on the disk)</source>
        <translation>%1 (nicht mehr auf der Festplatte)</translation>
    </message>
    <message>
        <source>This file is no longer on the disk. What is open here is its last copy:</source>
        <translation>Diese Datei ist nicht mehr auf der Festplatte. Was hier offen ist, ist ihre letzte Kopie:</translation>
    </message>
    <message>
        <source>These files have unsaved changes, or are no longer on the disk. What is open here is their last copy:</source>
        <translation>Diese Dateien haben ungespeicherte Änderungen oder sind nicht mehr auf der Festplatte. Was hier offen ist, ist ihre letzte Kopie:</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Schließen ohne zu speichern</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::WindowCommands</name>
    <message>
        <source>About Zorv</source>
        <translation>Über Zorv</translation>
    </message>
    <message>
        <source>Zorv %1

An editor for people who make characters and stages for two-dimensional fighting games. The text is the only truth; trees and lists follow.

Under the MIT licence. Made with Qt %2.</source>
        <translation>Zorv %1

Ein Editor für alle, die Figuren und Bühnen für zweidimensionale Kampfspiele machen. Der Text ist die einzige Wahrheit; Bäume und Listen folgen ihm.

Unter der MIT-Lizenz. Erstellt mit Qt %2.</translation>
    </message>
</context>
<context>
    <name>App::WindowInterface</name>
    <message>
        <source>Choose palettes</source>
        <translation>Paletten wählen</translation>
    </message>
    <message>
        <source>Palettes</source>
        <translation>Paletten</translation>
    </message>
</context>
<context>
    <name>App::WorkRecovery</name>
    <message>
        <source>%1 belongs to the game %2. It is offered again when that is opened.</source>
        <translation>%1 gehört zum Spiel %2 und wird wieder angeboten, wenn dieses geöffnet wird.</translation>
    </message>
    <message>
        <source>%1 was changed meanwhile. The copy is kept.</source>
        <translation>%1 wurde inzwischen geändert. Die Kopie bleibt erhalten.</translation>
    </message>
    <message>
        <source>%1 is no longer named by its project. The copy is kept.</source>
        <translation>%1 wird von seinem Projekt nicht mehr genannt. Die Kopie bleibt erhalten.</translation>
    </message>
    <message>
        <source>Unsaved work</source>
        <translation>Ungespeicherte Arbeit</translation>
    </message>
</context>
<context>
    <name>EncDlg</name>
    <message>
        <source>Encoding</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>&amp;Encoding of the file:</source>
        <translation>&amp;Kodierung der Datei:</translation>
    </message>
</context>
<context>
    <name>ExAxisDlg</name>
    <message>
        <source>Extra cross</source>
        <translation>Zusatzkreuz</translation>
    </message>
    <message>
        <source>X:</source>
        <translation>X:</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y:</translation>
    </message>
</context>
<context>
    <name>Family</name>
    <message>
        <source>There is no file or folder &apos;%1&apos;.</source>
        <translation>Die Datei oder den Ordner &apos;%1&apos; gibt es nicht.</translation>
    </message>
    <message>
        <source>There is no character or stage in &apos;%1&apos;. Expected files such as &apos;characters/hero/hero.character&apos;.</source>
        <translation>In &apos;%1&apos; ist weder Figur noch Bühne. Erwartet werden Dateien wie &apos;characters/hero/hero.character&apos;.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>character</source>
        <translation>Figur</translation>
    </message>
    <message>
        <source>stage</source>
        <translation>Bühne</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>the end of the line</source>
        <translation>das Ende der Zeile</translation>
    </message>
    <message>
        <source>Did you mean &apos;%1&apos;?</source>
        <translation>War &apos;%1&apos; gemeint?</translation>
    </message>
    <message>
        <source>Here is none to choose from.</source>
        <translation>Hier gibt es keinen zur Auswahl.</translation>
    </message>
    <message>
        <source>Expected one of: %1.</source>
        <translation>Erwartet wird eines von: %1.</translation>
    </message>
    <message>
        <source> from %1 to %2</source>
        <translation> von %1 bis %2</translation>
    </message>
    <message>
        <source>The path &apos;%1&apos; cannot be read from its character %2 on. Expected names with &apos;.&apos; or &apos;/&apos; between, such as &apos;constants.life&apos; or &apos;animation:200/frame:0/delay&apos;.</source>
        <translation>Der Pfad &apos;%1&apos; ist ab seinem Zeichen %2 nicht lesbar. Erwartet werden Namen mit &apos;.&apos; oder &apos;/&apos; dazwischen, wie &apos;constants.life&apos; oder &apos;animation:200/frame:0/delay&apos;.</translation>
    </message>
    <message>
        <source>Expected &apos;yes&apos; or &apos;no&apos;.</source>
        <translation>Erwartet: &apos;yes&apos; oder &apos;no&apos;.</translation>
    </message>
    <message>
        <source>Expected one value; found &apos;%1&apos;.</source>
        <translation>Erwartet: ein Wert; gefunden: &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Expected %1 and nothing else; found &apos;%2&apos;.</source>
        <translation>Erwartet: %1 und sonst nichts; gefunden: &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Expected %1; found &apos;%2&apos;.</source>
        <translation>Erwartet: %1; gefunden: &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Expected a text without control characters.</source>
        <translation>Erwartet: ein Text ohne Steuerzeichen.</translation>
    </message>
    <message>
        <source>The line of the frame cannot be read. Correct it first.</source>
        <translation>Die Zeile des Einzelbilds ist nicht lesbar. Bitte zuerst berichtigen.</translation>
    </message>
    <message>
        <source>Expected a number or a word; found &apos;%1&apos;.</source>
        <translation>Erwartet: eine Zahl oder ein Wort; gefunden: &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The animation has no number or name. Give it one first.</source>
        <translation>Die Animation hat weder Nummer noch Namen. Bitte ihr zuerst einen geben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a %2, not a value. Name a part of it, as in &apos;%1%3&apos;.</source>
        <translation>&apos;%1&apos; ist kein Wert (sondern: %2). Bitte einen Teil davon nennen, wie in &apos;%1%3&apos;.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>The engine has no name.</source>
        <translation>Die Engine hat keinen Namen.</translation>
    </message>
    <message>
        <source>Choose the program of the engine &apos;%1&apos;.</source>
        <translation>Bitte das Programm der Engine &apos;%1&apos; wählen.</translation>
    </message>
    <message>
        <source>There is no program &apos;%1&apos;. Correct its path.</source>
        <translation>Das Programm &apos;%1&apos; gibt es nicht. Bitte den Pfad berichtigen.</translation>
    </message>
    <message>
        <source>The parameters of the engine &apos;%1&apos; ask for no project. Write %2 in the place of the project in front.</source>
        <translation>Die Parameter der Engine &apos;%1&apos; verlangen kein Projekt. Bitte %2 an die Stelle des vorderen Projekts schreiben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no parts.</source>
        <translation>&apos;%1&apos; hat keine Teile.</translation>
    </message>
    <message>
        <source>There is no &apos;%1&apos; in the file. %2</source>
        <translation>&apos;%1&apos; gibt es in der Datei nicht. %2</translation>
    </message>
    <message>
        <source>There is no &apos;%1&apos; in &apos;%2&apos;. %3</source>
        <translation>&apos;%1&apos; gibt es in &apos;%2&apos; nicht. %3</translation>
    </message>
    <message>
        <source>There is no &apos;%1&apos; in &apos;%2&apos;: it has %3 of them, counted from 0.</source>
        <translation>&apos;%1&apos; gibt es in &apos;%2&apos; nicht: Dort sind %3 davon, gezählt ab 0.</translation>
    </message>
    <message>
        <source>a text in double quotes</source>
        <translation>ein Text in doppelten Anführungszeichen</translation>
    </message>
    <message>
        <source>the path of a file in double quotes</source>
        <translation>der Pfad einer Datei in doppelten Anführungszeichen</translation>
    </message>
    <message>
        <source>a name</source>
        <translation>ein Name</translation>
    </message>
    <message>
        <source>the number or name of an animation</source>
        <translation>die Nummer oder der Name einer Animation</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>eines von %1</translation>
    </message>
    <message>
        <source>a day such as 2024-05-31</source>
        <translation>ein Tag wie 2024-05-31</translation>
    </message>
    <message>
        <source>a whole number without sign</source>
        <translation>eine ganze Zahl ohne Vorzeichen</translation>
    </message>
    <message>
        <source>a percentage such as 80%</source>
        <translation>ein Prozentwert wie 80%</translation>
    </message>
    <message>
        <source>a colour such as 0xff8040</source>
        <translation>eine Farbe wie 0xff8040</translation>
    </message>
    <message>
        <source>colours such as 0xff8040 with commas between</source>
        <translation>Farben wie 0xff8040, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>two numbers, x and y</source>
        <translation>zwei Zahlen, x und y</translation>
    </message>
    <message>
        <source>two numbers</source>
        <translation>zwei Zahlen</translation>
    </message>
    <message>
        <source>three numbers</source>
        <translation>drei Zahlen</translation>
    </message>
    <message>
        <source>numbers with commas between</source>
        <translation>Zahlen, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>two whole numbers, x and y</source>
        <translation>zwei ganze Zahlen, x und y</translation>
    </message>
    <message>
        <source>two whole numbers</source>
        <translation>zwei ganze Zahlen</translation>
    </message>
    <message>
        <source>four whole numbers: left, top, right and bottom</source>
        <translation>vier ganze Zahlen: links, oben, rechts und unten</translation>
    </message>
    <message>
        <source>whole numbers with commas between</source>
        <translation>ganze Zahlen, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>a value</source>
        <translation>ein Wert</translation>
    </message>
    <message>
        <source>Expected a group such as &apos;[constants]&apos;, &apos;key = value&apos;, &apos;animation&apos;, &apos;frame&apos; or a box; found %1. Put &apos;#&apos; in front to make it a comment.</source>
        <translation>Erwartet: eine Gruppe wie &apos;[constants]&apos;, &apos;Schlüssel = Wert&apos;, &apos;animation&apos;, &apos;frame&apos; oder eine Box; gefunden: %1. Mit &apos;#&apos; davor wird daraus ein Kommentar.</translation>
    </message>
    <message>
        <source>Expected the end of the line; found %1. Remove it, or put &apos;#&apos; in front of it.</source>
        <translation>Erwartet: das Ende der Zeile; gefunden: %1. Bitte entfernen oder &apos;#&apos; davor setzen.</translation>
    </message>
    <message>
        <source>The format line stands above the first group or animation. Move it to the top.</source>
        <translation>Die Formatzeile steht über der ersten Gruppe oder Animation. Bitte an den Anfang setzen.</translation>
    </message>
    <message>
        <source>Expected &apos;1&apos; behind &apos;zorv&apos;; found %1. This program reads format 1.</source>
        <translation>Erwartet: &apos;1&apos; hinter &apos;zorv&apos;; gefunden: %1. Dieses Programm liest Format 1.</translation>
    </message>
    <message>
        <source>Expected the name of a group behind &apos;[&apos;.</source>
        <translation>Erwartet: der Name einer Gruppe hinter &apos;[&apos;.</translation>
    </message>
    <message>
        <source>Expected &apos;]&apos; at the end of the group head.</source>
        <translation>Erwartet: &apos;]&apos; am Ende des Gruppenkopfs.</translation>
    </message>
    <message>
        <source>There is no group &apos;%1&apos;. %2</source>
        <translation>Die Gruppe &apos;%1&apos; gibt es nicht. %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is the old name of the group &apos;%2&apos;. Write &apos;%2&apos;.</source>
        <translation>&apos;%1&apos; ist der alte Name der Gruppe &apos;%2&apos;. Bitte &apos;%2&apos; schreiben.</translation>
    </message>
    <message>
        <source>The group &apos;%1&apos; has no effect in a %2 file. Move it to a %3 file.</source>
        <translation>Die Gruppe &apos;%1&apos; wirkt in einer Datei der Art %2 nicht. Bitte in eine Datei der Art %3 verschieben.</translation>
    </message>
    <message>
        <source>Expected a name behind &apos;%1&apos;, as in &apos;[%1 first]&apos;.</source>
        <translation>Erwartet: ein Name hinter &apos;%1&apos;, wie in &apos;[%1 first]&apos;.</translation>
    </message>
    <message>
        <source>The group &apos;%1&apos; takes no name. Remove &apos;%2&apos;.</source>
        <translation>Die Gruppe &apos;%1&apos; nimmt keinen Namen. Bitte &apos;%2&apos; entfernen.</translation>
    </message>
    <message>
        <source>A sub-group belongs to the group above it; here is none. Write the group&apos;s head first.</source>
        <translation>Eine Untergruppe gehört zur Gruppe über ihr; hier ist keine. Bitte zuerst den Kopf der Gruppe schreiben.</translation>
    </message>
    <message>
        <source>The group &apos;%1&apos; has no sub-group &apos;%2&apos;. %3</source>
        <translation>Die Gruppe &apos;%1&apos; hat keine Untergruppe &apos;%2&apos;. %3</translation>
    </message>
    <message>
        <source>A value stands in a group. Write a group such as &apos;[constants]&apos; above it.</source>
        <translation>Ein Wert steht in einer Gruppe. Bitte eine Gruppe wie &apos;[constants]&apos; darüber schreiben.</translation>
    </message>
    <message>
        <source>The group &apos;%1&apos; has no key &apos;%2&apos;. %3</source>
        <translation>Die Gruppe &apos;%1&apos; hat keinen Schlüssel &apos;%2&apos;. %3</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is the old name of &apos;%2&apos;. Write &apos;%2&apos;.</source>
        <translation>&apos;%1&apos; ist der alte Name von &apos;%2&apos;. Bitte &apos;%2&apos; schreiben.</translation>
    </message>
    <message>
        <source>Expected &apos;=&apos; behind the key &apos;%1&apos;.</source>
        <translation>Erwartet: &apos;=&apos; hinter dem Schlüssel &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Expected %1 behind &apos;=&apos;.</source>
        <translation>Erwartet: %1 hinter &apos;=&apos;.</translation>
    </message>
    <message>
        <source>Expected a text in double quotes; found %1.</source>
        <translation>Erwartet: ein Text in doppelten Anführungszeichen; gefunden: %1.</translation>
    </message>
    <message>
        <source>Expected a double quote at the end of the text.</source>
        <translation>Erwartet: ein doppeltes Anführungszeichen am Ende des Textes.</translation>
    </message>
    <message>
        <source>&apos;\%1&apos; means nothing in a text. Expected &apos;\&quot;&apos;, &apos;\\&apos; or &apos;\n&apos;; for a backslash write &apos;\\&apos;.</source>
        <translation>&apos;\%1&apos; bedeutet in einem Text nichts. Erwartet: &apos;\&quot;&apos;, &apos;\\&apos; oder &apos;\n&apos;; für einen umgekehrten Schrägstrich bitte &apos;\\&apos; schreiben.</translation>
    </message>
    <message>
        <source>Backslashes in paths are old. Write &apos;/&apos;.</source>
        <translation>Umgekehrte Schrägstriche in Pfaden sind veraltet. Bitte &apos;/&apos; schreiben.</translation>
    </message>
    <message>
        <source>Expected a name of letters, digits, &apos;_&apos; and &apos;-&apos;; found %1.</source>
        <translation>Erwartet: ein Name aus Buchstaben, Ziffern, &apos;_&apos; und &apos;-&apos;; gefunden: %1.</translation>
    </message>
    <message>
        <source>Expected one of %1; found %2.</source>
        <translation>Erwartet: eines von %1; gefunden: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is the old word for &apos;%2&apos;. Write &apos;%2&apos;.</source>
        <translation>&apos;%1&apos; ist das alte Wort für &apos;%2&apos;. Bitte &apos;%2&apos; schreiben.</translation>
    </message>
    <message>
        <source>Expected a day such as 2024-05-31; found %1.</source>
        <translation>Erwartet: ein Tag wie 2024-05-31; gefunden: %1.</translation>
    </message>
    <message>
        <source>Expected a whole number; found %1.</source>
        <translation>Erwartet: eine ganze Zahl; gefunden: %1.</translation>
    </message>
    <message>
        <source>Expected a number such as 0.5; found %1.</source>
        <translation>Erwartet: eine Zahl wie 0.5; gefunden: %1.</translation>
    </message>
    <message>
        <source>Expected a whole number without sign; found %1.</source>
        <translation>Erwartet: eine ganze Zahl ohne Vorzeichen; gefunden: %1.</translation>
    </message>
    <message>
        <source>Expected a percentage such as 80%; found %1.</source>
        <translation>Erwartet: ein Prozentwert wie 80%; gefunden: %1.</translation>
    </message>
    <message>
        <source>Expected a colour such as 0xff8040; found %1.</source>
        <translation>Erwartet: eine Farbe wie 0xff8040; gefunden: %1.</translation>
    </message>
    <message>
        <source>Expected &apos;,&apos; between two numbers.</source>
        <translation>Erwartet: &apos;,&apos; zwischen zwei Zahlen.</translation>
    </message>
    <message>
        <source>Expected %1 numbers; found %2.</source>
        <translation>Erwartet: %1 Zahlen; gefunden: %2.</translation>
    </message>
    <message>
        <source>Expected a number from %1 to %2; found %3.</source>
        <translation>Erwartet: eine Zahl von %1 bis %2; gefunden: %3.</translation>
    </message>
    <message>
        <source>Expected the number or name of the animation, as in &apos;animation 200&apos;.</source>
        <translation>Erwartet: die Nummer oder der Name der Animation, wie in &apos;animation 200&apos;.</translation>
    </message>
    <message>
        <source>A frame stands in an animation. Write a line such as &apos;animation 200&apos; above it.</source>
        <translation>Ein Einzelbild steht in einer Animation. Bitte eine Zeile wie &apos;animation 200&apos; darüber schreiben.</translation>
    </message>
    <message>
        <source>Expected the group and number of a sprite, as in &apos;frame 200,0&apos;.</source>
        <translation>Erwartet: Gruppe und Nummer eines Sprites, wie in &apos;frame 200,0&apos;.</translation>
    </message>
    <message>
        <source>A frame has no option &apos;%1&apos;. %2</source>
        <translation>Ein Einzelbild hat keine Angabe &apos;%1&apos;. %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is the old name of the option &apos;%2&apos;. Write &apos;%2&apos;.</source>
        <translation>&apos;%1&apos; ist der alte Name der Angabe &apos;%2&apos;. Bitte &apos;%2&apos; schreiben.</translation>
    </message>
    <message>
        <source>The option &apos;%1&apos; stands twice. Remove one.</source>
        <translation>Die Angabe &apos;%1&apos; steht doppelt. Bitte eine entfernen.</translation>
    </message>
    <message>
        <source>A frame with delay 0 is never seen. Write 1 or more, or -1 for one that stays.</source>
        <translation>Ein Einzelbild mit delay 0 ist nie zu sehen. Bitte 1 oder mehr schreiben, oder -1 für eines, das bleibt.</translation>
    </message>
    <message>
        <source>A contact box stands in an animation, in front of its frame. Write a line such as &apos;animation 200&apos; above it.</source>
        <translation>Eine Kontaktbox steht in einer Animation vor ihrem Einzelbild. Bitte eine Zeile wie &apos;animation 200&apos; darüber schreiben.</translation>
    </message>
    <message>
        <source>Expected left before right and top before bottom. Swap the numbers.</source>
        <translation>Erwartet: links vor rechts und oben vor unten. Bitte die Zahlen tauschen.</translation>
    </message>
    <message>
        <source>&apos;[%1]&apos; stands already in line %2. Join the two, or remove one.</source>
        <translation>&apos;[%1]&apos; steht schon in Zeile %2. Bitte beide vereinen oder eine entfernen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is set already in line %2; only the first counts. Remove one.</source>
        <translation>&apos;%1&apos; ist schon in Zeile %2 gesetzt; nur das erste gilt. Bitte eines entfernen.</translation>
    </message>
    <message>
        <source>The group &apos;%1&apos; needs the key &apos;%2&apos;. Add &apos;%2 = &apos; and %3.</source>
        <translation>Die Gruppe &apos;%1&apos; braucht den Schlüssel &apos;%2&apos;. Bitte &apos;%2 = &apos; ergänzen, dahinter: %3.</translation>
    </message>
    <message>
        <source>The animation &apos;%1&apos; stands already in %2 line %3. Give one of them another name.</source>
        <translation>Die Animation &apos;%1&apos; steht schon in %2 Zeile %3. Bitte einer von beiden einen anderen Namen geben.</translation>
    </message>
    <message>
        <source>The animation &apos;%1&apos; has no frame. Add a line such as &apos;frame 0,0&apos;, or remove it.</source>
        <translation>Die Animation &apos;%1&apos; hat kein Einzelbild. Bitte eine Zeile wie &apos;frame 0,0&apos; ergänzen oder die Animation entfernen.</translation>
    </message>
    <message>
        <source>No frame follows this contact box. Add a frame behind it, or remove it.</source>
        <translation>Auf diese Kontaktbox folgt kein Einzelbild. Bitte eines dahinter ergänzen oder die Box entfernen.</translation>
    </message>
    <message>
        <source>The animation &apos;%1&apos; does not tell where it starts again. Put &apos;loop&apos; at a frame, or &apos;delay -1&apos; at the last.</source>
        <translation>Die Animation &apos;%1&apos; sagt nicht, wo sie wieder beginnt. Bitte &apos;loop&apos; zu einem Einzelbild setzen oder &apos;delay -1&apos; zum letzten.</translation>
    </message>
    <message>
        <source>The animation &apos;%1&apos; has its &apos;loop&apos; already in line %2. Remove one.</source>
        <translation>Die Animation &apos;%1&apos; hat ihr &apos;loop&apos; schon in Zeile %2. Bitte eines entfernen.</translation>
    </message>
    <message>
        <source>This frame is never shown: the one in line %1 stays for ever (delay -1).</source>
        <translation>Dieses Einzelbild wird nie gezeigt: Das in Zeile %1 bleibt für immer (delay -1).</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;. Correct the path, or put the file there.</source>
        <translation>Die Datei &apos;%1&apos; gibt es nicht. Bitte den Pfad berichtigen oder die Datei dort ablegen.</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2. Check its permissions.</source>
        <translation>&apos;%1&apos; kann nicht gelesen werden: %2. Bitte die Rechte prüfen.</translation>
    </message>
    <message>
        <source>The path &apos;%1&apos; leaves the game folder. Copy the file into the folder and write its path there.</source>
        <translation>Der Pfad &apos;%1&apos; verlässt den Spielordner. Bitte die Datei in den Ordner kopieren und ihren Pfad dort schreiben.</translation>
    </message>
    <message>
        <source>The file names itself. Remove the line.</source>
        <translation>Die Datei nennt sich selbst. Bitte die Zeile entfernen.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is named already in line %2. Remove one.</source>
        <translation>Die Datei &apos;%1&apos; ist schon in Zeile %2 genannt. Bitte eine entfernen.</translation>
    </message>
    <message>
        <source>There is no animation &apos;%1&apos;. %2</source>
        <translation>Die Animation &apos;%1&apos; gibt es nicht. %2</translation>
    </message>
    <message>
        <source>The file does not come back byte for byte from its encoding, %1. Open it in another encoding before it is saved.</source>
        <translation>Die Datei kommt aus ihrer Kodierung, %1, nicht Byte für Byte zurück. Bitte vor dem Speichern in einer anderen Kodierung öffnen.</translation>
    </message>
    <message>
        <source>the name of a command</source>
        <translation>der Name eines Befehls</translation>
    </message>
    <message>
        <source>the name of a move</source>
        <translation>der Name einer Aktion</translation>
    </message>
    <message>
        <source>its record is damaged</source>
        <translation>sein Eintrag ist beschädigt</translation>
    </message>
    <message>
        <source>its form is not one that the program knows</source>
        <translation>seine Form ist keine, die das Programm kennt</translation>
    </message>
    <message>
        <source>its samples are missing</source>
        <translation>seine Abtastwerte fehlen</translation>
    </message>
    <message>
        <source>its samples lie outside of the file</source>
        <translation>seine Abtastwerte liegen außerhalb der Datei</translation>
    </message>
    <message>
        <source>its samples overlap those of another sound</source>
        <translation>seine Abtastwerte überschneiden sich mit denen eines anderen Klangs</translation>
    </message>
    <message>
        <source>its samples are damaged</source>
        <translation>seine Abtastwerte sind beschädigt</translation>
    </message>
    <message>
        <source>sprite</source>
        <translation>Sprite</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>Klang</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weiterer</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no %2 file, or its first bytes are damaged. Name another file, or take this one from a backup.</source>
        <translation>&apos;%1&apos; ist keine %2datei, oder ihre ersten Bytes sind beschädigt. Bitte eine andere Datei nennen oder diese aus einer Sicherung holen.</translation>
    </message>
    <message>
        <source>A part of &apos;%1&apos; is broken. %2</source>
        <translation>Ein Teil von &apos;%1&apos; ist beschädigt. %2</translation>
    </message>
    <message>
        <source>There is no sprite %1 in &apos;%2&apos;. Correct the numbers, or add the sprite.</source>
        <translation>Es gibt kein Sprite %1 in &apos;%2&apos;. Bitte die Zahlen berichtigen oder das Sprite hinzufügen.</translation>
    </message>
    <message>
        <source>There is no sound %1 in &apos;%2&apos;. Correct the numbers, or add the sound.</source>
        <translation>Es gibt keinen Klang %1 in &apos;%2&apos;. Bitte die Zahlen berichtigen oder den Klang hinzufügen.</translation>
    </message>
    <message>
        <source>No frame and no layer shows these sprites of &apos;%1&apos;: %2. Remove them, or use them.</source>
        <translation>Kein Bild und keine Ebene zeigt diese Sprites von &apos;%1&apos;: %2. Bitte sie entfernen oder verwenden.</translation>
    </message>
    <message>
        <source>No sprite has these palettes of &apos;%1&apos;: %2. Remove them, or give them to sprites.</source>
        <translation>Kein Sprite hat diese Paletten von &apos;%1&apos;: %2. Bitte sie entfernen oder Sprites geben.</translation>
    </message>
    <message>
        <source>Nothing plays these sounds of &apos;%1&apos;: %2. Remove them, or use them.</source>
        <translation>Nichts spielt diese Klänge von &apos;%1&apos;: %2. Bitte sie entfernen oder verwenden.</translation>
    </message>
    <message>
        <source>These palettes of &apos;%1&apos; have more than 32 colours, but all their sprites are stored as LZ5, which keeps the first 32: %2. Store the sprites in another codec.</source>
        <translation>Diese Paletten von &apos;%1&apos; haben mehr als 32 Farben, aber alle ihre Sprites sind als LZ5 gespeichert, das die ersten 32 behält: %2. Bitte die Sprites in einem anderen Format speichern.</translation>
    </message>
    <message>
        <source>it is not a sound file</source>
        <translation>es ist keine Klangdatei</translation>
    </message>
    <message>
        <source>its first bytes are damaged</source>
        <translation>ihre ersten Bytes sind beschädigt</translation>
    </message>
    <message>
        <source>a newer version of the program has written it</source>
        <translation>eine neuere Fassung des Programms hat sie geschrieben</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>ihr Ende fehlt</translation>
    </message>
    <message>
        <source>The name of &apos;%1&apos; is no text in UTF-8, so nothing of it can be read. Give it another name.</source>
        <translation>Der Name von &apos;%1&apos; ist kein Text in UTF-8; deshalb lässt sich nichts davon lesen. Bitte einen anderen Namen geben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read: %2. Check the permissions of the folders on the way.</source>
        <translation>&apos;%1&apos; kann nicht gelesen werden: %2. Prüfen Sie die Rechte der Ordner auf dem Weg.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is another program in each folder. Write its whole path.</source>
        <translation>&apos;%1&apos; ist in jedem Ordner ein anderes Programm. Bitte den ganzen Pfad schreiben.</translation>
    </message>
    <message>
        <source>Sound %1 (%2): %3.</source>
        <translation>Klang %1 (%2): %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n more record(s) are broken.</source>
        <translation>
            <numerusform>%n weiterer Eintrag ist beschädigt.</numerusform>
            <numerusform>%n weitere Einträge sind beschädigt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There is no &apos;%1&apos; in &apos;%2&apos;: it has %n frame(s), counted from 0.</source>
        <translation>
            <numerusform>&apos;%1&apos; gibt es in &apos;%2&apos; nicht: Dort ist %n Einzelbild, gezählt ab 0.</numerusform>
            <numerusform>&apos;%1&apos; gibt es in &apos;%2&apos; nicht: Dort sind %n Einzelbilder, gezählt ab 0.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n Fehler</numerusform>
            <numerusform>%n Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n Warnung</numerusform>
            <numerusform>%n Warnungen</numerusform>
        </translation>
    </message>
    <message>
        <source>a motion in double quotes, such as &quot;D, DF, F, L&quot;</source>
        <translation>eine Bewegung in doppelten Anführungszeichen, etwa &quot;D, DF, F, L&quot;</translation>
    </message>
    <message>
        <source>%1 means nothing in a motion. Expected directions such as DF and buttons such as L, with &apos;+&apos; between what is done together, &apos;~&apos; in front of what is let go, and commas between the steps.</source>
        <translation>%1 bedeutet in einer Bewegung nichts. Erwartet: Richtungen wie DF und Knöpfe wie L, mit &apos;+&apos; zwischen dem, was zugleich geschieht, &apos;~&apos; vor dem, was losgelassen wird, und Kommas zwischen den Schritten.</translation>
    </message>
    <message>
        <source>The character has commands and a stance, but lacks animations that every match shows: %1. Add them.</source>
        <translation>Die Figur hat Befehle und eine Grundhaltung, aber es fehlen Animationen, die jeder Kampf zeigt: %1. Füge sie hinzu.</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;. %2</source>
        <translation>Es gibt keinen Befehl &apos;%1&apos;. %2</translation>
    </message>
    <message>
        <source>There is no move &apos;%1&apos;. %2</source>
        <translation>Es gibt keine Aktion &apos;%1&apos;. %2</translation>
    </message>
    <message>
        <source>It starts the run. Add it to &apos;[commands]&apos;.</source>
        <translation>Er beginnt das Rennen. Fügen Sie ihn in &apos;[commands]&apos; ein.</translation>
    </message>
    <message>
        <source>It starts the hop back. Add it to &apos;[commands]&apos;.</source>
        <translation>Er beginnt den Sprung zurück. Fügen Sie ihn in &apos;[commands]&apos; ein.</translation>
    </message>
</context>
<context>
    <name>Family::AssetReload</name>
    <message>
        <source>%1 is being worked with, and was not read again. Close its project and open it to see what has changed on the disk.</source>
        <translation>Mit %1 wird gerade gearbeitet, die Datei wurde nicht neu gelesen. Schließen Sie das Projekt und öffnen Sie es wieder, um zu sehen, was sich auf der Platte geändert hat.</translation>
    </message>
</context>
<context>
    <name>Family::FamilyAnimations</name>
    <message>
        <source>Duplicate animation</source>
        <translation>Animation duplizieren</translation>
    </message>
    <message>
        <source>Remove animation</source>
        <translation>Animation entfernen</translation>
    </message>
    <message>
        <source>Move animation</source>
        <translation>Animation verschieben</translation>
    </message>
    <message>
        <source>Sort animations</source>
        <translation>Animationen sortieren</translation>
    </message>
    <message>
        <source>Remove redundant lines</source>
        <translation>Überflüssige Zeilen entfernen</translation>
    </message>
</context>
<context>
    <name>Family::FamilyEngineModel</name>
    <message>
        <source>Zorv reference family</source>
        <translation>Zorv-Referenzfamilie</translation>
    </message>
    <message>
        <source>Zorv player</source>
        <translation>Zorv-Player</translation>
    </message>
</context>
<context>
    <name>Family::FamilyParentProject</name>
    <message>
        <source>Engine</source>
        <translation>Engine</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has just been changed, so it was not started. Start it again if you know what has changed it.</source>
        <translation>&apos;%1&apos; ist gerade geändert worden und wurde darum nicht gestartet. Starten Sie noch einmal, wenn Sie wissen, was es geändert hat.</translation>
    </message>
</context>
<context>
    <name>Family::FamilyProject</name>
    <message>
        <source>new file</source>
        <translation>neue Datei</translation>
    </message>
    <message>
        <source>New stage</source>
        <translation>Neue Bühne</translation>
    </message>
    <message>
        <source>New character</source>
        <translation>Neue Figur</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message numerus="yes">
        <source>%1: and %n more.</source>
        <translation>
            <numerusform>%1: und %n weiteres Problem.</numerusform>
            <numerusform>%1: und %n weitere Probleme.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Family::FamilySprite</name>
    <message>
        <source>its record in the file is broken</source>
        <translation>sein Eintrag in der Datei ist beschädigt</translation>
    </message>
    <message>
        <source>the record of its pixels in the file is broken</source>
        <translation>der Eintrag seiner Pixel in der Datei ist beschädigt</translation>
    </message>
    <message>
        <source>its pixels are broken</source>
        <translation>seine Pixel sind beschädigt</translation>
    </message>
    <message>
        <source>Duplicate sprite</source>
        <translation>Sprite verdoppeln</translation>
    </message>
    <message>
        <source>Change sprite</source>
        <translation>Sprite ändern</translation>
    </message>
    <message>
        <source>Move axis</source>
        <translation>Achse verschieben</translation>
    </message>
    <message>
        <source>Change palette of sprite</source>
        <translation>Palette des Sprites ändern</translation>
    </message>
    <message>
        <source>Rename sprite</source>
        <translation>Sprite umbenennen</translation>
    </message>
    <message>
        <source>Split channels</source>
        <translation>Kanäle trennen</translation>
    </message>
</context>
<context>
    <name>Family::FolderContent</name>
    <message>
        <source>%1 is no image that can be read.</source>
        <translation>%1 ist kein lesbares Bild.</translation>
    </message>
</context>
<context>
    <name>Family::FolderList</name>
    <message>
        <source>Line %1 of %2 makes no sense: %3</source>
        <translation>Zeile %1 von %2 ergibt keinen Sinn: %3</translation>
    </message>
</context>
<context>
    <name>Family::FrameComposer</name>
    <message>
        <source>There is no sprite %1.</source>
        <translation>Es gibt kein Sprite %1.</translation>
    </message>
    <message>
        <source>Sprite %1 has no pixels, or they are broken.</source>
        <translation>Sprite %1 hat keine Pixel, oder sie sind beschädigt.</translation>
    </message>
    <message>
        <source>A zoom is above 0, and %1 at most.</source>
        <translation>Ein Zoom ist größer als 0 und höchstens %1.</translation>
    </message>
    <message>
        <source>There is nothing to be seen: the frame is scaled to nothing.</source>
        <translation>Es ist nichts zu sehen: Das Einzelbild ist auf nichts verkleinert.</translation>
    </message>
    <message>
        <source>The picture would be %1 by %2 pixels, which is too large. Choose a smaller zoom, or look at scales and offsets of the frames.</source>
        <translation>Das Bild hätte %1 mal %2 Pixel, und das ist zu groß. Bitte einen kleineren Zoom wählen, oder nach Skalierung und Versatz der Einzelbilder sehen.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 by %2 pixels.</source>
        <translation>Der Speicher reicht nicht für ein Bild von %1 mal %2 Pixeln.</translation>
    </message>
</context>
<context>
    <name>Family::IndexMapping</name>
    <message>
        <source>Change pixels</source>
        <translation>Pixel ändern</translation>
    </message>
</context>
<context>
    <name>Family::JsonView</name>
    <message>
        <source>line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>It is longer than 16 MiB.</source>
        <translation>Sie ist länger als 16 MiB.</translation>
    </message>
    <message>
        <source>It has more than %1 lists in each other at %2.</source>
        <translation>Sie hat mehr als %1 Listen ineinander, in %2.</translation>
    </message>
    <message>
        <source>It is no JSON at %1.</source>
        <translation>Sie ist kein JSON, in %1.</translation>
    </message>
</context>
<context>
    <name>Family::NameKind</name>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Sprite</source>
        <translation>Sprite</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Klang</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>Family::PaletteList</name>
    <message>
        <source>Add palette</source>
        <translation>Palette hinzufügen</translation>
    </message>
    <message>
        <source>Delete palette</source>
        <translation>Palette löschen</translation>
    </message>
    <message>
        <source>Delete all palettes</source>
        <translation>Alle Paletten löschen</translation>
    </message>
    <message>
        <source>Delete unused palettes</source>
        <translation>Unbenutzte Paletten löschen</translation>
    </message>
    <message>
        <source>Delete repeated palettes</source>
        <translation>Mehrfache Paletten löschen</translation>
    </message>
    <message>
        <source>Change palette</source>
        <translation>Palette ändern</translation>
    </message>
    <message>
        <source>Rename palette</source>
        <translation>Palette umbenennen</translation>
    </message>
    <message>
        <source>Broken in the file</source>
        <translation>In der Datei beschädigt</translation>
    </message>
    <message>
        <source>Colors: %1</source>
        <translation>Farben: %1</translation>
    </message>
    <message>
        <source>Add palettes</source>
        <translation>Paletten hinzufügen</translation>
    </message>
</context>
<context>
    <name>Family::Reference</name>
    <message>
        <source>There is no file &apos;%1&apos;.</source>
        <translation>Es gibt keine Datei &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>No other frame of the project shows the sprite %1,%2.</source>
        <translation>Kein anderes Einzelbild des Projekts zeigt das Sprite %1,%2.</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;.</source>
        <translation>Es gibt keinen Befehl &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>There is no move &apos;%1&apos;.</source>
        <translation>Es gibt keine Aktion &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>There is no animation &apos;%1&apos;.</source>
        <translation>Es gibt keine Animation &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Nothing here names something that stands elsewhere.</source>
        <translation>Hier wird nichts genannt, das anderswo steht.</translation>
    </message>
    <message>
        <source>There is no sound %1.</source>
        <translation>Es gibt keinen Klang %1.</translation>
    </message>
    <message>
        <source>The project has no sounds.</source>
        <translation>Das Projekt hat keine Klänge.</translation>
    </message>
</context>
<context>
    <name>Family::RemapModel</name>
    <message>
        <source>Remap palettes</source>
        <translation>Paletten ersetzen</translation>
    </message>
    <message>
        <source>Broken in the file</source>
        <translation>In der Datei beschädigt</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Gezeigt als</translation>
    </message>
</context>
<context>
    <name>Family::Sheet</name>
    <message numerus="yes">
        <source>%n frame(s) lie outside of the picture and are left out, first of all &apos;%1&apos;. Is it the picture of this file?</source>
        <translation>
            <numerusform>%n Einzelbild liegt außerhalb des Bildes und fehlt: „%1“. Ist es das Bild zu dieser Datei?</numerusform>
            <numerusform>%n Einzelbilder liegen außerhalb des Bildes und fehlen, zuerst „%1“. Ist es das Bild zu dieser Datei?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Family::SheetCutter</name>
    <message>
        <source>There is nothing on the sheet.</source>
        <translation>Auf dem Bogen ist nichts.</translation>
    </message>
    <message>
        <source>These are more than %1 frames. Cut larger ones.</source>
        <translation>Das sind mehr als %1 Einzelbilder. Größer schneiden.</translation>
    </message>
    <message>
        <source>The picture of %1 by %2 has no room for such a cell. Choose a smaller one, or fewer of them.</source>
        <translation>Das Bild von %1 mal %2 hat keinen Platz für eine solche Zelle. Eine kleinere wählen oder weniger davon.</translation>
    </message>
    <message numerus="yes">
        <source>%n empty cell(s) at the end are left out.</source>
        <translation>
            <numerusform>%n leere Zelle am Ende fällt weg.</numerusform>
            <numerusform>%n leere Zellen am Ende fallen weg.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some pixels are in no cell: %1 columns at the right, %2 rows at the bottom.</source>
        <translation>Einige Pixel sind in keiner Zelle: %1 Spalten rechts, %2 Zeilen unten.</translation>
    </message>
    <message>
        <source>A sheet has up to %1 pixels across and down.</source>
        <translation>Ein Bogen ist bis zu %1 Pixel breit und hoch.</translation>
    </message>
</context>
<context>
    <name>Family::SheetReader</name>
    <message>
        <source>It tells no frames. Expected &apos;frames&apos;, as drawing programs write them beside a sheet.</source>
        <translation>Sie nennt keine Einzelbilder. Erwartet wird „frames“, wie Zeichenprogramme es neben einen Bogen schreiben.</translation>
    </message>
    <message>
        <source>It has no frames.</source>
        <translation>Sie hat keine Einzelbilder.</translation>
    </message>
    <message numerus="yes">
        <source>%n more of these.</source>
        <translation>
            <numerusform>%n weiterer Hinweis dieser Art.</numerusform>
            <numerusform>%n weitere Hinweise dieser Art.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is a map of tiles, no sheet of sprites.</source>
        <translation>Sie ist eine Karte aus Kacheln, kein Bogen mit Sprites.</translation>
    </message>
    <message>
        <source>It is an animation of bones. Export its frames as pictures.</source>
        <translation>Sie ist eine Animation aus Knochen. Ihre Einzelbilder als Bilder ausgeben.</translation>
    </message>
    <message>
        <source>It has more than %1 frames.</source>
        <translation>Sie hat mehr als %1 Einzelbilder.</translation>
    </message>
    <message>
        <source>Frame %1, &apos;%2&apos;, has no place on the sheet. Expected a &apos;frame&apos; with whole numbers x, y, w and h up to %3.</source>
        <translation>Einzelbild %1, „%2“, hat keinen Platz auf dem Bogen. Erwartet wird ein „frame“ mit ganzen Zahlen x, y, w und h bis %3.</translation>
    </message>
    <message>
        <source>Frame %1, &apos;%2&apos;, is cut to a polygon. Pack the sheet with rectangles.</source>
        <translation>Einzelbild %1, „%2“, ist als Vieleck geschnitten. Den Bogen mit Rechtecken packen.</translation>
    </message>
    <message>
        <source>Frame %1, &apos;%2&apos;, is turned by another angle than 90 degrees. Expected true or false as &apos;rotated&apos;.</source>
        <translation>Einzelbild %1, „%2“, ist um einen anderen Winkel als 90 Grad gedreht. Erwartet wird true oder false als „rotated“.</translation>
    </message>
    <message>
        <source>Frame %1, &apos;%2&apos;, was cut to another size than it says; it may stand a little beside its place.</source>
        <translation>Einzelbild %1, „%2“, ist anders geschnitten, als es sagt; es steht vielleicht etwas neben seinem Platz.</translation>
    </message>
    <message>
        <source>The tag &apos;%1&apos; begins in front of the tag before it. If the sheet was made of several files, its numbers may be wrong.</source>
        <translation>Das Tag „%1“ beginnt vor dem Tag davor. Wenn der Bogen aus mehreren Dateien gemacht ist, sind seine Nummern vielleicht falsch.</translation>
    </message>
    <message>
        <source>The tag &apos;%1&apos; means frames that are not on the sheet. It is left out.</source>
        <translation>Das Tag „%1“ meint Einzelbilder, die nicht auf dem Bogen sind. Es fällt weg.</translation>
    </message>
    <message>
        <source>The animation &apos;%1&apos; shows &apos;%2&apos;, which is not on the sheet.</source>
        <translation>Die Animation „%1“ zeigt „%2“, das nicht auf dem Bogen ist.</translation>
    </message>
</context>
<context>
    <name>Family::SoundFile</name>
    <message>
        <source>Change sound</source>
        <translation>Klang ändern</translation>
    </message>
    <message>
        <source>Duplicate sound</source>
        <translation>Klang verdoppeln</translation>
    </message>
    <message>
        <source>Renumber sound</source>
        <translation>Klang umnummerieren</translation>
    </message>
    <message>
        <source>Remove broken sounds</source>
        <translation>Beschädigte Klänge entfernen</translation>
    </message>
    <message>
        <source>Add sound</source>
        <translation>Klang hinzufügen</translation>
    </message>
    <message>
        <source>Move sound</source>
        <translation>Klang verschieben</translation>
    </message>
    <message>
        <source>Sort sounds</source>
        <translation>Klänge sortieren</translation>
    </message>
    <message>
        <source>Cannot open the sounds of %1: %2.</source>
        <translation>Die Klänge von %1 lassen sich nicht öffnen: %2.</translation>
    </message>
    <message>
        <source>Cannot save %1: the sounds cannot be read from the temporary file any more. The old file is unchanged.</source>
        <translation>%1 lässt sich nicht speichern: Die Klänge sind aus der Zwischendatei nicht mehr zu lesen. Die alte Datei ist unverändert.</translation>
    </message>
    <message>
        <source>Delete sound</source>
        <translation>Klang löschen</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Restore unsaved sounds</source>
        <translation>Ungespeicherte Klänge wiederherstellen</translation>
    </message>
</context>
<context>
    <name>Family::SpriteCollection</name>
    <message>
        <source>Remove broken records</source>
        <translation>Beschädigte Einträge entfernen</translation>
    </message>
    <message>
        <source>Add sprite</source>
        <translation>Sprite hinzufügen</translation>
    </message>
    <message>
        <source>Add sprites</source>
        <translation>Sprites hinzufügen</translation>
    </message>
    <message>
        <source>Delete sprite</source>
        <translation>Sprite löschen</translation>
    </message>
    <message>
        <source>Delete sprites</source>
        <translation>Sprites löschen</translation>
    </message>
    <message>
        <source>Move sprite</source>
        <translation>Sprite verschieben</translation>
    </message>
    <message>
        <source>Sort sprites</source>
        <translation>Sprites sortieren</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, %3</source>
        <translation>%1 × %2 Pixel, %3</translation>
    </message>
    <message>
        <source>Broken: %1</source>
        <translation>Beschädigt: %1</translation>
    </message>
    <message>
        <source>Restore unsaved sprites</source>
        <translation>Ungespeicherte Sprites wiederherstellen</translation>
    </message>
</context>
<context>
    <name>Family::SpriteFile</name>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Cannot write %1: pixels that were kept in a temporary file are lost. Make room on the disk of temporary files, and add them anew.</source>
        <translation>%1 kann nicht geschrieben werden: Pixel aus einer temporären Datei sind verloren. Schaffen Sie Platz auf dem Datenträger der temporären Dateien und fügen Sie sie neu hinzu.</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
</context>
<context>
    <name>Family::SpriteFileData</name>
    <message>
        <source>Palette %1 is broken: %2.</source>
        <translation>Palette %1 ist beschädigt: %2.</translation>
    </message>
    <message>
        <source>Pixels %1 are broken: %2.</source>
        <translation>Pixel %1 sind beschädigt: %2.</translation>
    </message>
    <message>
        <source>Sprite %1 is broken: %2.</source>
        <translation>Sprite %1 ist beschädigt: %2.</translation>
    </message>
    <message>
        <source>Remap %1 is broken: %2.</source>
        <translation>Ersetzung %1 ist beschädigt: %2.</translation>
    </message>
    <message>
        <source>its values make no sense</source>
        <translation>die Werte ergeben keinen Sinn</translation>
    </message>
    <message>
        <source>its checksum is wrong</source>
        <translation>die Prüfsumme ist falsch</translation>
    </message>
    <message>
        <source>Pixels %1 are broken: they are not in the file.</source>
        <translation>Pixel %1 sind beschädigt: Sie sind nicht in der Datei.</translation>
    </message>
    <message>
        <source>Sprite %1 (%2) has broken pixels.</source>
        <translation>Sprite %1 (%2) hat beschädigte Pixel.</translation>
    </message>
    <message>
        <source>Sprite %1 (%2) is broken: it names pixels or a palette that are not there.</source>
        <translation>Sprite %1 (%2) ist beschädigt: Es nennt Pixel oder eine Palette, die es nicht gibt.</translation>
    </message>
    <message>
        <source>it is no sprite file</source>
        <translation>es ist keine Sprite-Datei</translation>
    </message>
    <message>
        <source>it was made by a newer version of the program</source>
        <translation>sie stammt von einer neueren Version des Programms</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>sie ist abgeschnitten</translation>
    </message>
    <message>
        <source>its head is broken</source>
        <translation>ihr Kopf ist beschädigt</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>The head of the file is broken; what stands behind it is not.</source>
        <translation>Der Kopf der Datei ist beschädigt, was dahinter steht, nicht.</translation>
    </message>
    <message>
        <source>The file has %1 bytes in place of %2.</source>
        <translation>Die Datei hat %1 Bytes statt %2.</translation>
    </message>
</context>
<context>
    <name>Family::SpriteFolder</name>
    <message>
        <source>Cannot write %1.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Cannot read %1: it is no folder. Choose a folder of images.</source>
        <translation>%1 kann nicht gelesen werden: Es ist kein Ordner. Wählen Sie einen Ordner mit Bildern.</translation>
    </message>
    <message>
        <source>Cannot write the sprite %1: its pixels are broken. Remove it, or give it another image.</source>
        <translation>Das Sprite %1 kann nicht geschrieben werden: Seine Pixel sind beschädigt. Entfernen Sie es oder geben Sie ihm ein anderes Bild.</translation>
    </message>
    <message>
        <source>Cannot write %1: it is a link. Remove it, or put a file in its place.</source>
        <translation>%1 kann nicht geschrieben werden: Es ist ein Link. Entfernen Sie ihn, oder legen Sie eine Datei an seine Stelle.</translation>
    </message>
</context>
<context>
    <name>Family::WordMeaning</name>
    <message>
        <source>The format of the file</source>
        <translation>Das Format der Datei</translation>
    </message>
    <message>
        <source>Belongs to [%1]</source>
        <translation>Gehört zu [%1]</translation>
    </message>
    <message>
        <source>Takes a name, as in [%1 first]</source>
        <translation>Nimmt einen Namen, wie in [%1 first]</translation>
    </message>
    <message>
        <source>Takes %1</source>
        <translation>Nimmt: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Pflichtangabe</translation>
    </message>
    <message>
        <source>May stand several times</source>
        <translation>Darf mehrmals stehen</translation>
    </message>
    <message>
        <source>animation %1</source>
        <translation>Animation %1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>In %1</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>left</source>
        <translation>linke</translation>
    </message>
    <message>
        <source>top</source>
        <translation>obere</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechte</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>untere</translation>
    </message>
    <message>
        <source>%1 edge: %2</source>
        <translation>%1 Kante: %2</translation>
    </message>
    <message>
        <source>Pixels from the axis of the frame</source>
        <translation>Pixel von der Achse des Einzelbilds</translation>
    </message>
    <message>
        <source>sprite %1,%2</source>
        <translation>Sprite %1,%2</translation>
    </message>
    <message>
        <source>Group and number of the sprite</source>
        <translation>Gruppe und Nummer des Sprites</translation>
    </message>
    <message>
        <source>Frames: %1; it never ends</source>
        <translation>Einzelbilder: %1; sie endet nie</translation>
    </message>
    <message>
        <source>Frames: %1; ticks: %2</source>
        <translation>Einzelbilder: %1; Ticks: %2</translation>
    </message>
</context>
<context>
    <name>GoToDlg</name>
    <message>
        <source>Go to line</source>
        <translation>Gehe zu Zeile</translation>
    </message>
    <message>
        <source>&amp;Line:</source>
        <translation>&amp;Zeile:</translation>
    </message>
</context>
<context>
    <name>Grammar</name>
    <message>
        <source>Place of the sprite beside the axis: x and y</source>
        <translation>Platz des Sprites neben der Achse: x und y</translation>
    </message>
    <message>
        <source>Ticks for which it is shown; -1 never ends</source>
        <translation>Ticks, die es zu sehen ist; -1 endet nie</translation>
    </message>
    <message>
        <source>How the sprite is mirrored</source>
        <translation>Wie das Sprite gespiegelt wird</translation>
    </message>
    <message>
        <source>Stretch across and down; below 0 mirrors</source>
        <translation>Streckung waagerecht und senkrecht; unter 0 gespiegelt</translation>
    </message>
    <message>
        <source>Degrees, counterclockwise</source>
        <translation>Grad, gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>The animation starts again here</source>
        <translation>Hier beginnt die Animation von vorn</translation>
    </message>
    <message>
        <source>Mirrored, left and right</source>
        <translation>Gespiegelt, links und rechts</translation>
    </message>
    <message>
        <source>Mirrored, top and bottom</source>
        <translation>Gespiegelt, oben und unten</translation>
    </message>
    <message>
        <source>Mirrored both ways</source>
        <translation>In beide Richtungen gespiegelt</translation>
    </message>
    <message>
        <source>An animation: its number or word, and its name</source>
        <translation>Eine Animation: ihre Nummer oder ihr Wort, und ihr Name</translation>
    </message>
    <message>
        <source>A frame: the sprite, and how it is shown</source>
        <translation>Ein Einzelbild: das Sprite, und wie es gezeigt wird</translation>
    </message>
    <message>
        <source>A contact box of the next frame that hits</source>
        <translation>Eine Kontaktbox des nächsten Einzelbilds, die trifft</translation>
    </message>
    <message>
        <source>A contact box of the next frame that is hit</source>
        <translation>Eine Kontaktbox des nächsten Einzelbilds, die getroffen wird</translation>
    </message>
    <message>
        <source>The name that people see</source>
        <translation>Der Name, den man sieht</translation>
    </message>
    <message>
        <source>Who made it</source>
        <translation>Wer es gemacht hat</translation>
    </message>
    <message>
        <source>Version of the work</source>
        <translation>Version des Werks</translation>
    </message>
    <message>
        <source>Day of the first version</source>
        <translation>Tag der ersten Version</translation>
    </message>
    <message>
        <source>Day of the last change</source>
        <translation>Tag der letzten Änderung</translation>
    </message>
    <message>
        <source>Width and height of the screen that it was made for</source>
        <translation>Breite und Höhe des Bildschirms, für den es gemacht ist</translation>
    </message>
    <message>
        <source>Colour in lists</source>
        <translation>Farbe in Listen</translation>
    </message>
    <message>
        <source>What others may do with it</source>
        <translation>Was andere damit tun dürfen</translation>
    </message>
    <message>
        <source>Anything else</source>
        <translation>Alles Weitere</translation>
    </message>
    <message>
        <source>Sprite file</source>
        <translation>Spritedatei</translation>
    </message>
    <message>
        <source>Sound file</source>
        <translation>Klangdatei</translation>
    </message>
    <message>
        <source>Further code file</source>
        <translation>Weitere Codedatei</translation>
    </message>
    <message>
        <source>File of animations</source>
        <translation>Datei mit Animationen</translation>
    </message>
    <message>
        <source>File of commands</source>
        <translation>Datei mit Befehlen</translation>
    </message>
    <message>
        <source>Life at the start</source>
        <translation>Leben zu Beginn</translation>
    </message>
    <message>
        <source>Most power</source>
        <translation>Höchste Kraft</translation>
    </message>
    <message>
        <source>Strength of attacks</source>
        <translation>Stärke der Angriffe</translation>
    </message>
    <message>
        <source>Strength of the defence</source>
        <translation>Stärke der Abwehr</translation>
    </message>
    <message>
        <source>Fall, in pixels a tick for each tick</source>
        <translation>Fall, in Pixeln je Tick für jeden Tick</translation>
    </message>
    <message>
        <source>Stretch of all sprites</source>
        <translation>Streckung aller Sprites</translation>
    </message>
    <message>
        <source>Red, green and blue by which colours are multiplied</source>
        <translation>Rot, Grün und Blau, mit denen Farben multipliziert werden</translation>
    </message>
    <message>
        <source>Side of the stronger hand</source>
        <translation>Seite der stärkeren Hand</translation>
    </message>
    <message>
        <source>Faces the opponent of its own accord</source>
        <translation>Wendet sich von selbst dem Gegner zu</translation>
    </message>
    <message>
        <source>Colour of the shadow</source>
        <translation>Farbe des Schattens</translation>
    </message>
    <message>
        <source>Colours of its hit sparks</source>
        <translation>Farben der Trefferfunken</translation>
    </message>
    <message>
        <source>Percent of damage for each further hit of a combo</source>
        <translation>Prozent des Schadens für jeden weiteren Treffer einer Kombo</translation>
    </message>
    <message>
        <source>Share of life given back at the end of each round</source>
        <translation>Anteil des Lebens, den es am Ende jeder Runde zurückgibt</translation>
    </message>
    <message>
        <source>Speed forward</source>
        <translation>Geschwindigkeit vorwärts</translation>
    </message>
    <message>
        <source>Speed back</source>
        <translation>Geschwindigkeit rückwärts</translation>
    </message>
    <message>
        <source>Shown while walking</source>
        <translation>Beim Gehen zu sehen</translation>
    </message>
    <message>
        <source>Shown while running</source>
        <translation>Beim Laufen zu sehen</translation>
    </message>
    <message>
        <source>Speed at the start, straight up</source>
        <translation>Geschwindigkeit beim Absprung, gerade hinauf</translation>
    </message>
    <message>
        <source>Speed at the start, forward</source>
        <translation>Geschwindigkeit beim Absprung, vorwärts</translation>
    </message>
    <message>
        <source>Speed at the start, back</source>
        <translation>Geschwindigkeit beim Absprung, rückwärts</translation>
    </message>
    <message>
        <source>Ticks before the start and after the landing</source>
        <translation>Ticks vor dem Absprung und nach der Landung</translation>
    </message>
    <message>
        <source>The box that keeps fighters apart</source>
        <translation>Die Box, die Kämpfer auseinanderhält</translation>
    </message>
    <message>
        <source>Place of the head</source>
        <translation>Platz des Kopfes</translation>
    </message>
    <message>
        <source>Place of the middle</source>
        <translation>Platz der Mitte</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Width to the back and to the front</source>
        <translation>Breite nach hinten und nach vorn</translation>
    </message>
    <message>
        <source>The motion of a command</source>
        <translation>Die Bewegung eines Befehls</translation>
    </message>
    <message>
        <source>Ticks for the whole motion</source>
        <translation>Ticks für die ganze Bewegung</translation>
    </message>
    <message>
        <source>Ticks for which a command stays true</source>
        <translation>Ticks, die ein Befehl gültig bleibt</translation>
    </message>
    <message>
        <source>The command that starts the move</source>
        <translation>Der Befehl, der die Aktion beginnt</translation>
    </message>
    <message>
        <source>Shown during the move</source>
        <translation>Während der Aktion zu sehen</translation>
    </message>
    <message>
        <source>Where it can be started</source>
        <translation>Wo sie begonnen werden kann</translation>
    </message>
    <message>
        <source>Which of two attacks wins</source>
        <translation>Welcher von zwei Angriffen gewinnt</translation>
    </message>
    <message>
        <source>Speed at the start</source>
        <translation>Geschwindigkeit zu Beginn</translation>
    </message>
    <message>
        <source>The move that it can be cancelled into</source>
        <translation>Die Aktion, in die sie abgebrochen werden kann</translation>
    </message>
    <message>
        <source>For the person</source>
        <translation>Für den Menschen</translation>
    </message>
    <message>
        <source>Power that it takes</source>
        <translation>Kraft, die sie kostet</translation>
    </message>
    <message>
        <source>Life that it takes</source>
        <translation>Leben, das sie kostet</translation>
    </message>
    <message>
        <source>Damage when hit and when guarded</source>
        <translation>Schaden bei Treffer und bei Block</translation>
    </message>
    <message>
        <source>How it has to be guarded</source>
        <translation>Wie sie geblockt werden muss</translation>
    </message>
    <message>
        <source>Ticks for which the other cannot act</source>
        <translation>Ticks, die der andere nicht handeln kann</translation>
    </message>
    <message>
        <source>Speed given to the other</source>
        <translation>Geschwindigkeit, die der andere bekommt</translation>
    </message>
    <message>
        <source>Place of the spark</source>
        <translation>Platz des Funkens</translation>
    </message>
    <message>
        <source>Pixels by which the screen shakes, tick by tick</source>
        <translation>Pixel, um die der Bildschirm wackelt, Tick für Tick</translation>
    </message>
    <message>
        <source>Group and number of the sound of a hit</source>
        <translation>Gruppe und Nummer des Klangs eines Treffers</translation>
    </message>
    <message>
        <source>Group and number of the sound of a guarded hit</source>
        <translation>Gruppe und Nummer des Klangs eines geblockten Treffers</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Palette file</source>
        <translation>Palettendatei</translation>
    </message>
    <message>
        <source>Colours that replace the first ones of the file</source>
        <translation>Farben, die die ersten der Datei ersetzen</translation>
    </message>
    <message>
        <source>The button that selects it</source>
        <translation>Die Taste, die sie auswählt</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Left end</source>
        <translation>Linkes Ende</translation>
    </message>
    <message>
        <source>Right end</source>
        <translation>Rechtes Ende</translation>
    </message>
    <message>
        <source>Height of the floor</source>
        <translation>Höhe des Bodens</translation>
    </message>
    <message>
        <source>Where the middle of the screen can go</source>
        <translation>Wohin die Mitte des Bildschirms gehen kann</translation>
    </message>
    <message>
        <source>Smallest and largest zoom</source>
        <translation>Kleinster und größter Zoom</translation>
    </message>
    <message>
        <source>Factor on the gravity of characters</source>
        <translation>Faktor auf die Schwerkraft der Figuren</translation>
    </message>
    <message>
        <source>Colour of shadows</source>
        <translation>Farbe der Schatten</translation>
    </message>
    <message>
        <source>Place of the first fighter</source>
        <translation>Platz des ersten Kämpfers</translation>
    </message>
    <message>
        <source>Place of the second fighter</source>
        <translation>Platz des zweiten Kämpfers</translation>
    </message>
    <message>
        <source>Which way they look</source>
        <translation>Wohin sie blicken</translation>
    </message>
    <message>
        <source>Group and number of a sprite</source>
        <translation>Gruppe und Nummer eines Sprites</translation>
    </message>
    <message>
        <source>Shown in place of a sprite</source>
        <translation>Anstelle eines Sprites zu sehen</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>How far it follows the camera, across and down</source>
        <translation>Wie weit es der Kamera folgt, waagerecht und senkrecht</translation>
    </message>
    <message>
        <source>Its own speed</source>
        <translation>Eigene Geschwindigkeit</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>How it is mixed with what lies behind</source>
        <translation>Wie es mit dem gemischt wird, was dahinter liegt</translation>
    </message>
    <message>
        <source>Below 0 behind the fighters</source>
        <translation>Unter 0 hinter den Kämpfern</translation>
    </message>
    <message>
        <source>Where it is repeated</source>
        <translation>Wo es wiederholt wird</translation>
    </message>
    <message>
        <source>How often, across and down; 0 is without end</source>
        <translation>Wie oft, waagerecht und senkrecht; 0 ist ohne Ende</translation>
    </message>
    <message>
        <source>Pixels between</source>
        <translation>Pixel dazwischen</translation>
    </message>
    <message>
        <source>First and last sample of the repeated part</source>
        <translation>Erstes und letztes Sample des wiederholten Teils</translation>
    </message>
    <message>
        <source>Seconds for which it fades in</source>
        <translation>Sekunden, in denen sie eingeblendet wird</translation>
    </message>
    <message>
        <source>A value that is kept and not looked into</source>
        <translation>Ein Wert, der bleibt, wie er ist</translation>
    </message>
    <message>
        <source>An unknown group</source>
        <translation>Eine unbekannte Gruppe</translation>
    </message>
    <message>
        <source>What it is and who made it</source>
        <translation>Was es ist und wer es gemacht hat</translation>
    </message>
    <message>
        <source>The further files of the project</source>
        <translation>Die weiteren Dateien des Projekts</translation>
    </message>
    <message>
        <source>The fixed numbers of a character</source>
        <translation>Die festen Zahlen einer Figur</translation>
    </message>
    <message>
        <source>Walking</source>
        <translation>Gehen</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Laufen</translation>
    </message>
    <message>
        <source>Jumping</source>
        <translation>Springen</translation>
    </message>
    <message>
        <source>Sizes of the body</source>
        <translation>Maße des Körpers</translation>
    </message>
    <message>
        <source>Commands and motions</source>
        <translation>Befehle und Bewegungen</translation>
    </message>
    <message>
        <source>What counts for all commands</source>
        <translation>Was für alle Befehle gilt</translation>
    </message>
    <message>
        <source>One move</source>
        <translation>Eine Aktion</translation>
    </message>
    <message>
        <source>What the move takes</source>
        <translation>Was die Aktion kostet</translation>
    </message>
    <message>
        <source>What a hit does</source>
        <translation>Was ein Treffer bewirkt</translation>
    </message>
    <message>
        <source>Sounds of the move</source>
        <translation>Klänge der Aktion</translation>
    </message>
    <message>
        <source>One palette</source>
        <translation>Eine Palette</translation>
    </message>
    <message>
        <source>The extent of a stage</source>
        <translation>Die Ausdehnung einer Bühne</translation>
    </message>
    <message>
        <source>Where fighters begin</source>
        <translation>Wo die Kämpfer beginnen</translation>
    </message>
    <message>
        <source>One picture of a stage</source>
        <translation>Ein Bild einer Bühne</translation>
    </message>
    <message>
        <source>How the picture is repeated</source>
        <translation>Wie das Bild wiederholt wird</translation>
    </message>
    <message>
        <source>The music of a stage</source>
        <translation>Die Musik einer Bühne</translation>
    </message>
    <message>
        <source>The state that it starts from</source>
        <translation>Der Zustand, aus dem er beginnt</translation>
    </message>
    <message>
        <source>How often the move hits</source>
        <translation>Wie oft der Zug trifft</translation>
    </message>
    <message>
        <source>Ticks for which both stand still</source>
        <translation>Ticks, für die beide stillstehen</translation>
    </message>
    <message>
        <source>Ticks for which the other cannot act after a guarded hit</source>
        <translation>Ticks, für die der andere nach einem abgewehrten Treffer nicht handeln kann</translation>
    </message>
    <message>
        <source>Whether the other falls</source>
        <translation>Ob der andere fällt</translation>
    </message>
    <message>
        <source>Power gained when it hits and when it is guarded</source>
        <translation>Kraft, die es bringt, wenn er trifft und wenn er abgewehrt wird</translation>
    </message>
    <message>
        <source>Rounds that win a match</source>
        <translation>Runden, mit denen ein Kampf gewonnen ist</translation>
    </message>
    <message>
        <source>Seconds of a round; 0 is without end</source>
        <translation>Sekunden einer Runde; 0 ist ohne Ende</translation>
    </message>
</context>
<context>
    <name>ImagePreview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>ImgInfoDlg</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Indexed colors</source>
        <translation>Indizierte Farben</translation>
    </message>
    <message>
        <source>True color</source>
        <translation>Echtfarben</translation>
    </message>
    <message>
        <source>&amp;Axis:</source>
        <translation>&amp;Achse:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>&amp;Form:</source>
        <translation>&amp;Form:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Gruppe:</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Nummer:</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>Benutzte Farben:</translation>
    </message>
    <message>
        <source>many</source>
        <translation>viele</translation>
    </message>
    <message>
        <source>Palette:</source>
        <translation>Palette:</translation>
    </message>
    <message>
        <source>Codec:</source>
        <translation>Codec:</translation>
    </message>
    <message>
        <source>Nothing shows this sprite.</source>
        <translation>Nichts zeigt dieses Sprite.</translation>
    </message>
    <message>
        <source>Shown by:</source>
        <translation>Gezeigt von:</translation>
    </message>
</context>
<context>
    <name>ImgResizeDlg</name>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>&amp;Seitenverhältnis behalten</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Scale the picture</source>
        <translation>Bild skalieren</translation>
    </message>
    <message>
        <source>Change the room around the picture</source>
        <translation>Raum um das Bild ändern</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>&amp;Factor:</source>
        <translation>&amp;Faktor:</translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation>F&amp;ilter:</translation>
    </message>
    <message>
        <source>Picture at:</source>
        <translation>Bild steht:</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>Import from another project</source>
        <translation>Aus anderem Projekt importieren</translation>
    </message>
    <message>
        <source>Add from source</source>
        <translation>Aus der Quelle hinzufügen</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Ausgewählte entfernen</translation>
    </message>
    <message>
        <source>Project:</source>
        <translation>Projekt:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Quelle:</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>Ziel:</translation>
    </message>
    <message>
        <source>Double-click an item to rename.</source>
        <translation>Doppelklick auf einen Eintrag benennt ihn um.</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Invert selection</source>
        <translation>Auswahl umkehren</translation>
    </message>
    <message>
        <source>Replace existing</source>
        <translation>Vorhandene ersetzen</translation>
    </message>
    <message>
        <source>Skip (don&apos;t add)</source>
        <translation>Überspringen (nicht hinzufügen)</translation>
    </message>
    <message>
        <source>Conflicts:</source>
        <translation>Konflikte:</translation>
    </message>
    <message numerus="yes">
        <source>%n name(s) are taken or repeated.</source>
        <translation>
            <numerusform>%n Name ist vergeben oder doppelt.</numerusform>
            <numerusform>%n Namen sind vergeben oder doppelt.</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be used as a name.</source>
        <translation>&apos;%1&apos; kann kein Name sein.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>You can&apos;t import from the destination project!</source>
        <translation>Aus dem Zielprojekt selbst kann nichts importiert werden!</translation>
    </message>
</context>
<context>
    <name>ImportModel</name>
    <message>
        <source>The destination has this name already.</source>
        <translation>Das Ziel hat diesen Namen schon.</translation>
    </message>
    <message>
        <source>Another one is to have this name, too.</source>
        <translation>Ein anderer Eintrag soll auch so heißen.</translation>
    </message>
</context>
<context>
    <name>ItemPicker</name>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Invert selection</source>
        <translation>Auswahl umkehren</translation>
    </message>
</context>
<context>
    <name>ItemsDlg</name>
    <message>
        <source>Items</source>
        <translation>Einträge</translation>
    </message>
</context>
<context>
    <name>Operations</name>
    <message>
        <source>There is no file or folder &apos;%1&apos;.</source>
        <translation>Die Datei oder den Ordner &apos;%1&apos; gibt es nicht.</translation>
    </message>
    <message>
        <source>There is no character in &apos;%1&apos;.</source>
        <translation>In &apos;%1&apos; ist keine Figur.</translation>
    </message>
</context>
<context>
    <name>Operations::AbandonedWork</name>
    <message>
        <source>The copy is of another kind than its file.</source>
        <translation>Die Kopie ist von anderer Art als ihre Datei.</translation>
    </message>
    <message>
        <source>The copy cannot be read.</source>
        <translation>Die Kopie kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The copy of a canvas cannot be read: it is damaged, or there is not enough memory.</source>
        <translation>Die Kopie einer Zeichenfläche kann nicht gelesen werden: Sie ist beschädigt, oder der Speicher reicht nicht.</translation>
    </message>
</context>
<context>
    <name>Operations::AnimationEdits</name>
    <message>
        <source>There is no animation in the file.</source>
        <translation>In der Datei ist keine Animation.</translation>
    </message>
    <message>
        <source>There is no animation &apos;%1&apos;. Expected a place from #0 to #%2.</source>
        <translation>Die Animation &apos;%1&apos; gibt es nicht. Erwartet: ein Platz von #0 bis #%2.</translation>
    </message>
    <message>
        <source>There is no animation &apos;%1&apos;. %2</source>
        <translation>Die Animation &apos;%1&apos; gibt es nicht. %2</translation>
    </message>
    <message>
        <source>There are several animations &apos;%1&apos;. Name one by its place, &apos;#%2&apos; or &apos;#%3&apos;.</source>
        <translation>Es gibt mehrere Animationen &apos;%1&apos;. Bitte eine mit ihrem Platz nennen, &apos;#%2&apos; oder &apos;#%3&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot name an animation. Write a number, or a word of letters, digits, &apos;_&apos; and &apos;-&apos;.</source>
        <translation>&apos;%1&apos; kann keine Animation benennen. Bitte eine Zahl oder ein Wort aus Buchstaben, Ziffern, &apos;_&apos; und &apos;-&apos; schreiben.</translation>
    </message>
    <message>
        <source>There is an animation &apos;%1&apos; already. Choose another name.</source>
        <translation>Die Animation &apos;%1&apos; gibt es schon. Bitte einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>Remove animations</source>
        <translation>Animationen entfernen</translation>
    </message>
    <message>
        <source>The animation would have no frame.</source>
        <translation>Die Animation hätte kein Einzelbild.</translation>
    </message>
    <message>
        <source>Add animation</source>
        <translation>Animation hinzufügen</translation>
    </message>
</context>
<context>
    <name>Operations::AnimationGif</name>
    <message>
        <source>The frames are too far from each other for one picture.</source>
        <translation>Die Bilder liegen für ein gemeinsames Bild zu weit auseinander.</translation>
    </message>
    <message>
        <source>The animation has no frame to show.</source>
        <translation>Die Animation hat kein Bild, das zu sehen wäre.</translation>
    </message>
    <message>
        <source>The animation is larger than a GIF file can be, 65535 by 65535.</source>
        <translation>Die Animation ist größer, als eine GIF-Datei sein kann: 65535 mal 65535.</translation>
    </message>
    <message>
        <source>There is no sprite file beside &apos;%1&apos;. Name one with &apos;--sprites&apos;.</source>
        <translation>Neben &apos;%1&apos; steht keine Sprite-Datei. Bitte eine mit &apos;--sprites&apos; nennen.</translation>
    </message>
    <message>
        <source>There are several sprite files beside &apos;%1&apos;: %2. Name one with &apos;--sprites&apos;.</source>
        <translation>Neben &apos;%1&apos; stehen mehrere Sprite-Dateien: %2. Bitte eine mit &apos;--sprites&apos; nennen.</translation>
    </message>
    <message>
        <source>The frames together are too large for one file. Choose a smaller zoom.</source>
        <translation>Die Einzelbilder zusammen sind zu groß für eine Datei. Bitte einen kleineren Zoom wählen.</translation>
    </message>
</context>
<context>
    <name>Operations::AnimationRender</name>
    <message>
        <source>The animation has no frame.</source>
        <translation>Die Animation hat kein Einzelbild.</translation>
    </message>
    <message>
        <source>There is no frame %1. Expected a number from 0 to %2.</source>
        <translation>Es gibt kein Einzelbild %1. Erwartet wurde eine Zahl von 0 bis %2.</translation>
    </message>
    <message>
        <source>The sheet would be too large. Choose a smaller zoom.</source>
        <translation>Der Bogen würde zu groß. Bitte einen kleineren Zoom wählen.</translation>
    </message>
    <message>
        <source>The sheet is larger than the memory. Choose a smaller zoom.</source>
        <translation>Der Bogen ist größer als der Speicher. Bitte einen kleineren Zoom wählen.</translation>
    </message>
</context>
<context>
    <name>Operations::AnimationSource</name>
    <message>
        <source>There is no file or folder &apos;%1&apos;.</source>
        <translation>Es gibt keine Datei und keinen Ordner &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>There is no character or stage in &apos;%1&apos;.</source>
        <translation>In &apos;%1&apos; gibt es keine Figur und keine Bühne.</translation>
    </message>
    <message>
        <source>There are several projects in &apos;%1&apos;. Name one of them instead: %2.</source>
        <translation>In &apos;%1&apos; gibt es mehrere Projekte. Nennen Sie stattdessen eines davon: %2.</translation>
    </message>
    <message>
        <source>There is no animation &apos;%1&apos; in &apos;%2&apos;. %3</source>
        <translation>Es gibt keine Animation &apos;%1&apos; in &apos;%2&apos;. %3</translation>
    </message>
    <message>
        <source>Animation &apos;%1&apos; is in several files of &apos;%2&apos;. Name one of them instead.</source>
        <translation>Animation &apos;%1&apos; steht in mehreren Dateien von &apos;%2&apos;. Nennen Sie stattdessen eine davon.</translation>
    </message>
    <message>
        <source>There is no animation in &apos;%1&apos;.</source>
        <translation>In &apos;%1&apos; gibt es keine Animation.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names no sprites.</source>
        <translation>&apos;%1&apos; nennt keine Sprites.</translation>
    </message>
</context>
<context>
    <name>Operations::AssetImport</name>
    <message numerus="yes">
        <source>%n of the sprites in &apos;%1&apos; are broken, the first one is %2. Nothing is imported. Put them in anew there, or import the animations without their sprites.</source>
        <translation>
            <numerusform>%n der Sprites in &apos;%1&apos; ist defekt: %2. Nichts wird importiert. Fügen Sie ihn dort neu ein, oder importieren Sie die Animationen ohne ihre Sprites.</numerusform>
            <numerusform>%n der Sprites in &apos;%1&apos; sind defekt, der erste ist %2. Nichts wird importiert. Fügen Sie sie dort neu ein, oder importieren Sie die Animationen ohne ihre Sprites.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is imported: &apos;%1&apos; has no sprites that could be read. Write a sprite file into its group [files], or mend that one; or import the animations without their sprites.</source>
        <translation>Nichts wird importiert: &apos;%1&apos; hat keine Sprites, die gelesen werden konnten. Schreiben Sie eine Spritedatei in die Gruppe [files], oder reparieren Sie die vorhandene; oder importieren Sie die Animationen ohne ihre Sprites.</translation>
    </message>
    <message>
        <source>Import sprites from project &apos;%1&apos;</source>
        <translation>Sprites aus Projekt &apos;%1&apos; importieren</translation>
    </message>
</context>
<context>
    <name>Operations::AssetNames</name>
    <message>
        <source>The group %1 has no room for &apos;%2&apos;.</source>
        <translation>Die Gruppe %1 hat keinen Platz für &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not tell its group and number. Expected a name such as &apos;200-3.%2&apos;.</source>
        <translation>&apos;%1&apos; nennt Gruppe und Nummer nicht. Erwartet: ein Name wie &apos;200-3.%2&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; both go to %3.</source>
        <translation>&apos;%1&apos; und &apos;%2&apos; gehören beide zu %3.</translation>
    </message>
</context>
<context>
    <name>Operations::Backups</name>
    <message>
        <source>Before restore</source>
        <translation>Vor Wiederherstellung</translation>
    </message>
    <message>
        <source>Nothing was restored, for not all files that would change could be copied aside first. Check that there is space on the disk, or restore without a backup of the present files.</source>
        <translation>Nichts wurde wiederhergestellt, denn nicht alle Dateien, die sich ändern würden, konnten zuvor gesichert werden. Bitte prüfen, ob auf dem Datenträger Platz ist, oder ohne Sicherung der jetzigen Dateien wiederherstellen.</translation>
    </message>
    <message>
        <source>The name of the backup is empty. Give it a name such as &quot;Before the new moves&quot;.</source>
        <translation>Der Name der Sicherung ist leer. Bitte einen Namen wie &quot;Vor den neuen Angriffen&quot; geben.</translation>
    </message>
    <message>
        <source>The name &apos;%1&apos; cannot be that of a folder: it must have none of %2 and no control characters. Choose another name.</source>
        <translation>Der Name &apos;%1&apos; kann nicht der eines Ordners sein: Er darf keines von %2 und keine Steuerzeichen enthalten. Bitte einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>The name &apos;%1&apos; ends in a point or a blank, which some systems drop. Choose another name.</source>
        <translation>Der Name &apos;%1&apos; endet mit einem Punkt oder Leerzeichen, was manche Systeme weglassen. Bitte einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>The name of the backup is too long. Choose one of at most %1 letters.</source>
        <translation>Der Name der Sicherung ist zu lang. Bitte einen mit höchstens %1 Buchstaben wählen.</translation>
    </message>
    <message>
        <source>There is no backup &apos;%1&apos; in %2. Choose one of the list of backups.</source>
        <translation>Die Sicherung &apos;%1&apos; gibt es in %2 nicht. Bitte eine aus der Liste der Sicherungen wählen.</translation>
    </message>
    <message>
        <source>Cannot make the folder %1. Check that there is space on the disk and that the folder of the game may be written to.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden. Bitte prüfen, ob auf dem Datenträger Platz ist und in den Spielordner geschrieben werden darf.</translation>
    </message>
    <message>
        <source>The game cannot be written to, so nothing was restored.</source>
        <translation>In das Spiel kann nicht geschrieben werden; nichts wurde wiederhergestellt.</translation>
    </message>
    <message>
        <source>Some files were not restored and are as before. Check that there is space on the disk and that they may be written to, then restore again.</source>
        <translation>Einige Dateien wurden nicht wiederhergestellt und sind wie zuvor. Bitte prüfen, ob auf dem Datenträger Platz ist und in sie geschrieben werden darf, und dann erneut wiederherstellen.</translation>
    </message>
    <message>
        <source>The restore was given up in its middle: some files are those of the backup, the others are as before. Restore again, or put back what was there before.</source>
        <translation>Die Wiederherstellung wurde mittendrin abgebrochen: Einige Dateien sind die der Sicherung, die anderen sind wie zuvor. Bitte erneut wiederherstellen oder zurückholen, was vorher da war.</translation>
    </message>
    <message>
        <source>There is no backup, for it would not be complete. Check that there is space on the disk and that all files may be read, then try again.</source>
        <translation>Es wurde keine Sicherung angelegt, denn sie wäre nicht vollständig. Bitte prüfen, ob auf dem Datenträger Platz ist und alle Dateien gelesen werden dürfen, und es dann erneut versuchen.</translation>
    </message>
    <message>
        <source>Nothing is restored: %1 lies behind a link that leads out of the game. Remove the link, or put a folder or file in its place.</source>
        <translation>Nichts wird wiederhergestellt: %1 liegt hinter einem Link, der aus dem Spiel herausführt. Entfernen Sie den Link, oder legen Sie einen Ordner oder eine Datei an seine Stelle.</translation>
    </message>
</context>
<context>
    <name>Operations::ChangeSet</name>
    <message>
        <source>%1 cannot be called %2. Check that there is no such file, and that its folder can be written to.</source>
        <translation>%1 kann nicht %2 heißen. Bitte prüfen, dass es keine solche Datei gibt und dass in ihren Ordner geschrieben werden kann.</translation>
    </message>
    <message>
        <source>%1 has been changed meanwhile. Nothing is written. Try again.</source>
        <translation>%1 wurde inzwischen geändert. Nichts wird geschrieben. Bitte noch einmal versuchen.</translation>
    </message>
    <message>
        <source>%1 has been changed since, and stays as it is.</source>
        <translation>%1 wurde seitdem geändert und bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>A change of several files that was cut off is finished now.</source>
        <translation>Eine Änderung mehrerer Dateien, die abgebrochen war, ist jetzt zu Ende geführt.</translation>
    </message>
    <message>
        <source>A change of several files was cut off, and cannot be finished.</source>
        <translation>Eine Änderung mehrerer Dateien wurde abgebrochen und kann nicht zu Ende geführt werden.</translation>
    </message>
    <message>
        <source>Some files have changed already and could not be changed back. The rest is done the next time that the game is opened.</source>
        <translation>Einige Dateien sind schon geändert und konnten nicht zurückgesetzt werden. Der Rest folgt, wenn das Spiel das nächste Mal geöffnet wird.</translation>
    </message>
    <message>
        <source>%1 should tell of a change of several files, but cannot be read. Look whether names are as they should be, and remove it.</source>
        <translation>%1 sollte von einer Änderung mehrerer Dateien berichten, kann aber nicht gelesen werden. Bitte nachsehen, ob die Namen stimmen, und die Datei entfernen.</translation>
    </message>
    <message>
        <source>It is tried again the next time. To leave all as it is, remove %1.</source>
        <translation>Beim nächsten Mal wird es wieder versucht. Soll alles bleiben, wie es ist, bitte %1 entfernen.</translation>
    </message>
</context>
<context>
    <name>Operations::Create</name>
    <message>
        <source>There is no template &apos;%1&apos;. There are: %2.</source>
        <translation>Es gibt keine Vorlage „%1“. Es gibt: %2.</translation>
    </message>
    <message>
        <source>The template &apos;%1&apos; has no file &apos;{name}%2&apos;. Give it one.</source>
        <translation>Die Vorlage „%1“ hat keine Datei „{name}%2“. Geben Sie ihr eine.</translation>
    </message>
    <message>
        <source>Cannot read the template &apos;%1&apos;: %2.</source>
        <translation>Die Vorlage „%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Cannot make the file %1. Check the permissions of its folder.</source>
        <translation>Die Datei %1 kann nicht angelegt werden. Prüfen Sie die Rechte ihres Ordners.</translation>
    </message>
    <message>
        <source>There is no folder %1. Choose the folder of a game.</source>
        <translation>Es gibt keinen Ordner %1. Wählen Sie den Ordner eines Spiels.</translation>
    </message>
    <message>
        <source>A file is called by what is in it: its name ends in one of %1.</source>
        <translation>Eine Datei heißt nach dem, was in ihr steht: Ihr Name endet auf eines von %1.</translation>
    </message>
    <message>
        <source>%1 is there already. Choose another name.</source>
        <translation>%1 gibt es schon. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>There is no folder %1. Choose another one, or make it.</source>
        <translation>Es gibt keinen Ordner %1. Wählen Sie einen anderen oder legen Sie ihn an.</translation>
    </message>
    <message>
        <source>Nothing can be made in %1. Check the permissions of the folder, and that there is space on the disk.</source>
        <translation>In %1 kann nichts angelegt werden. Prüfen Sie die Rechte des Ordners und ob auf dem Datenträger Platz ist.</translation>
    </message>
    <message>
        <source>Write a name, such as &apos;ryn&apos;.</source>
        <translation>Schreiben Sie einen Namen, etwa „ryn“.</translation>
    </message>
    <message>
        <source>A name has none of %1 and no control characters. Choose another one.</source>
        <translation>Ein Name hat keines von %1 und keine Steuerzeichen. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>A name that begins with a point is that of a hidden folder, where no project is looked for. Choose another one.</source>
        <translation>Ein Name, der mit einem Punkt beginnt, ist der eines versteckten Ordners, in dem kein Projekt gesucht wird. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>A name does not end in a point, and neither begins nor ends in a blank: some systems drop these. Choose another one.</source>
        <translation>Ein Name endet nicht auf einen Punkt, und er beginnt und endet nicht mit einem Leerzeichen: Manche Systeme lassen das weg. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The file names of this system cannot hold the name. Choose another one.</source>
        <translation>Die Dateinamen dieses Systems können den Namen nicht wiedergeben. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The name has %1 bytes, of at most %2. Choose a shorter one.</source>
        <translation>Der Name hat %1 Bytes, höchstens %2 gehen. Wählen Sie einen kürzeren.</translation>
    </message>
    <message>
        <source>The sample game is not beside the program. Install the program anew.</source>
        <translation>Das Beispielspiel liegt nicht beim Programm. Installieren Sie das Programm neu.</translation>
    </message>
    <message>
        <source>Cannot copy the file &apos;%1&apos;. Check that there is space on the disk.</source>
        <translation>Die Datei „%1“ kann nicht kopiert werden. Prüfen Sie, ob auf dem Datenträger Platz ist.</translation>
    </message>
    <message>
        <source>Cannot copy the file &apos;%1&apos; of the template.</source>
        <translation>Die Datei „%1“ der Vorlage kann nicht kopiert werden.</translation>
    </message>
    <message>
        <source>Cannot read the file &apos;%1&apos; of the template. Check its permissions.</source>
        <translation>Die Datei „%1“ der Vorlage kann nicht gelesen werden. Prüfen Sie ihre Rechte.</translation>
    </message>
</context>
<context>
    <name>Operations::DiffPicture</name>
    <message>
        <source>Nothing can be drawn of the frames that differ.</source>
        <translation>Von den Einzelbildern, die sich unterscheiden, lässt sich nichts zeichnen.</translation>
    </message>
    <message>
        <source>The picture of the frames that differ would be too large.</source>
        <translation>Das Bild der Einzelbilder, die sich unterscheiden, würde zu groß.</translation>
    </message>
</context>
<context>
    <name>Operations::DocumentFile</name>
    <message>
        <source>Expected the name of a file; found an empty text.</source>
        <translation>Erwartet: der Name einer Datei; gefunden: ein leerer Text.</translation>
    </message>
    <message>
        <source>Cannot open %1: It is larger than %2 MB. Divide it into several files.</source>
        <translation>%1 kann nicht geöffnet werden: Die Datei ist größer als %2 MB. Bitte in mehrere Dateien teilen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; (%2)</source>
        <translation>&apos;%1&apos; (%2)</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>%1 does not come back byte for byte from its encoding, %2: saving it would change characters.</source>
        <translation>%1 kommt aus der Kodierung %2 nicht Byte für Byte zurück: Speichern würde Zeichen ändern.</translation>
    </message>
    <message>
        <source>Open it in %1</source>
        <translation>In %1 öffnen</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <translation>%1 behalten</translation>
    </message>
    <message>
        <source>%1 It does from %2.</source>
        <translation>%1 Aus %2 kommt sie so zurück.</translation>
    </message>
    <message>
        <source>%1, line %2: The encoding %3 has no %4. Change the character, or save the file in UTF-8.</source>
        <translation>%1, Zeile %2: Die Kodierung %3 kennt kein %4. Bitte das Zeichen ändern oder die Datei in UTF-8 speichern.</translation>
    </message>
    <message>
        <source>Saving %1 ends each of its lines with a carriage return and a line feed.</source>
        <translation>Beim Speichern von %1 endet jede Zeile mit Wagenrücklauf und Zeilenvorschub.</translation>
    </message>
    <message>
        <source>Save it in UTF-8</source>
        <translation>In UTF-8 speichern</translation>
    </message>
    <message>
        <source>Do not save</source>
        <translation>Nicht speichern</translation>
    </message>
</context>
<context>
    <name>Operations::FilePatterns</name>
    <message>
        <source>Expected the name of a file; found an empty text.</source>
        <translation>Erwartet: der Name einer Datei; gefunden: ein leerer Text.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder. Name files in it, as with &apos;%2&apos;.</source>
        <translation>&apos;%1&apos; ist ein Ordner. Bitte Dateien darin nennen, etwa mit &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a plain file. Name a file on a disk.</source>
        <translation>&apos;%1&apos; ist keine gewöhnliche Datei. Bitte eine Datei auf einem Datenträger nennen.</translation>
    </message>
    <message>
        <source>No file matches &apos;%1&apos;.</source>
        <translation>Auf &apos;%1&apos; passt keine Datei.</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;.</source>
        <translation>Es gibt keine Datei &apos;%1&apos;.</translation>
    </message>
</context>
<context>
    <name>Operations::FileSearch</name>
    <message>
        <source>Find in files</source>
        <translation>In Dateien suchen</translation>
    </message>
</context>
<context>
    <name>Operations::FindPattern</name>
    <message>
        <source>Character %1: %2</source>
        <translation>Zeichen %1: %2</translation>
    </message>
</context>
<context>
    <name>Operations::FindReplace</name>
    <message>
        <source>It has changed since it was searched. Search again.</source>
        <translation>Sie hat sich seit der Suche geändert. Suchen Sie noch einmal.</translation>
    </message>
    <message>
        <source>It does not come back byte for byte from its encoding, %1. Open it, and choose another encoding.</source>
        <translation>Aus ihrer Kodierung %1 kommt sie nicht Byte für Byte zurück. Öffnen Sie sie, und wählen Sie eine andere Kodierung.</translation>
    </message>
    <message>
        <source>Its encoding %1 has no &apos;%2&apos;. Open it, and save it in UTF-8.</source>
        <translation>Ihre Kodierung %1 hat kein &apos;%2&apos;. Öffnen Sie sie, und sichern Sie sie in UTF-8.</translation>
    </message>
    <message>
        <source>Replace in files</source>
        <translation>In Dateien ersetzen</translation>
    </message>
</context>
<context>
    <name>Operations::Fixes</name>
    <message>
        <source>Write &apos;%1&apos;</source>
        <translation>&apos;%1&apos; schreiben</translation>
    </message>
    <message>
        <source>Remove the line</source>
        <translation>Die Zeile entfernen</translation>
    </message>
    <message>
        <source>Remove the second &apos;%1&apos;</source>
        <translation>Das zweite &apos;%1&apos; entfernen</translation>
    </message>
    <message>
        <source>Swap the corners</source>
        <translation>Die Ecken vertauschen</translation>
    </message>
    <message>
        <source>Add &apos;=&apos;</source>
        <translation>&apos;=&apos; einfügen</translation>
    </message>
    <message>
        <source>Add &apos;]&apos;</source>
        <translation>&apos;]&apos; einfügen</translation>
    </message>
    <message>
        <source>Put it in double quotes</source>
        <translation>In Anführungszeichen setzen</translation>
    </message>
    <message>
        <source>Add the double quote</source>
        <translation>Das Anführungszeichen einfügen</translation>
    </message>
    <message>
        <source>Add &apos;,&apos;</source>
        <translation>&apos;,&apos; einfügen</translation>
    </message>
    <message>
        <source>Write &apos;/&apos;</source>
        <translation>&apos;/&apos; schreiben</translation>
    </message>
    <message>
        <source>Write &apos;\\&apos;</source>
        <translation>&apos;\\&apos; schreiben</translation>
    </message>
    <message>
        <source>Remove &apos;%1&apos;</source>
        <translation>&apos;%1&apos; entfernen</translation>
    </message>
    <message>
        <source>Make it a comment</source>
        <translation>Zum Kommentar machen</translation>
    </message>
    <message>
        <source>Put &apos;loop&apos; at the first frame</source>
        <translation>&apos;loop&apos; an das erste Einzelbild setzen</translation>
    </message>
    <message>
        <source>Create the animation &apos;%1&apos;</source>
        <translation>Die Animation &apos;%1&apos; anlegen</translation>
    </message>
    <message>
        <source>Create the animations %1</source>
        <translation>Die Animationen %1 anlegen</translation>
    </message>
    <message>
        <source>Create the command &apos;%1&apos;</source>
        <translation>Den Befehl &apos;%1&apos; anlegen</translation>
    </message>
    <message>
        <source>Create the move &apos;%1&apos;</source>
        <translation>Die Aktion &apos;%1&apos; anlegen</translation>
    </message>
    <message>
        <source>Create the sprite %1, with a placeholder</source>
        <translation>Das Sprite %1 mit einem Platzhalter anlegen</translation>
    </message>
    <message>
        <source>Create the sound %1, with silence</source>
        <translation>Den Klang %1 mit Stille anlegen</translation>
    </message>
    <message>
        <source>Create the file &apos;%1&apos;</source>
        <translation>Die Datei &apos;%1&apos; anlegen</translation>
    </message>
</context>
<context>
    <name>Operations::FrameEdits</name>
    <message>
        <source>Expected one of %1; found &apos;%2&apos;.</source>
        <translation>Erwartet: eines von %1; gefunden: &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Expected two numbers from %1 to %2, such as 4,-2; found &apos;%3&apos;.</source>
        <translation>Erwartet: zwei Zahlen von %1 bis %2, wie 4,-2; gefunden: &apos;%3&apos;.</translation>
    </message>
    <message numerus="yes">
        <source>%n offset(s) would be out of the range from %1 to %2.</source>
        <translation>
            <numerusform>%n Versatz läge außerhalb des Bereichs von %1 bis %2.</numerusform>
            <numerusform>%n Versätze lägen außerhalb des Bereichs von %1 bis %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n contact box(es) would be out of the range from %1 to %2.</source>
        <translation>
            <numerusform>%n Kontaktbox läge außerhalb des Bereichs von %1 bis %2.</numerusform>
            <numerusform>%n Kontaktboxen lägen außerhalb des Bereichs von %1 bis %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>The animation &apos;%1&apos; has no frame.</source>
        <translation>Die Animation &apos;%1&apos; hat kein Einzelbild.</translation>
    </message>
    <message>
        <source>There is no frame &apos;%1&apos;. Expected one from %2/0 to %2/%3.</source>
        <translation>Das Einzelbild &apos;%1&apos; gibt es nicht. Erwartet: eines von %2/0 bis %2/%3.</translation>
    </message>
</context>
<context>
    <name>Operations::GameDocuments</name>
    <message>
        <source>There is no file or folder &apos;%1&apos;.</source>
        <translation>Die Datei oder den Ordner &apos;%1&apos; gibt es nicht.</translation>
    </message>
    <message>
        <source>There is no character or stage in &apos;%1&apos;. Expected files such as &apos;characters/hero/hero.character&apos;.</source>
        <translation>In &apos;%1&apos; ist weder Figur noch Bühne. Erwartet werden Dateien wie &apos;characters/hero/hero.character&apos;.</translation>
    </message>
</context>
<context>
    <name>Operations::HostInterface</name>
    <message>
        <source>All known files</source>
        <translation>Alle bekannten Dateien</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; could not be read. It is damaged, or its format is not known here.</source>
        <translation>„%1“ konnte nicht gelesen werden. Die Datei ist beschädigt, oder ihr Format ist hier nicht bekannt.</translation>
    </message>
    <message>
        <source>The %1 %2 of the project &apos;%3&apos; is empty.</source>
        <translation>Leer im Projekt „%3“: %1 %2.</translation>
    </message>
</context>
<context>
    <name>Operations::ImageEdits</name>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>The result would be too large.</source>
        <translation>Das Ergebnis wäre zu groß.</translation>
    </message>
    <message>
        <source>It has no palette. Have its pixels take the nearest colours instead.</source>
        <translation>Es hat keine Palette. Bitte seine Pixel stattdessen die nächsten Farben annehmen lassen.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
</context>
<context>
    <name>Operations::ImageFiles</name>
    <message>
        <source>Cannot write &apos;%1&apos;: &apos;%2&apos; is no format of images. Expected .png, .pcx, .bmp or .gif.</source>
        <translation>&apos;%1&apos; lässt sich nicht schreiben: &apos;%2&apos; ist kein Bildformat. Erwartet: .png, .pcx, .bmp oder .gif.</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: an image of %2 by %3 does not fit the format. Choose another one.</source>
        <translation>&apos;%1&apos; lässt sich nicht schreiben: Ein Bild von %2 mal %3 passt nicht in das Format. Bitte ein anderes wählen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was replaced without the transparency of the picture: %2 has no place for it. PNG keeps it.</source>
        <translation>&apos;%1&apos; wurde ohne die Transparenz des Bildes ersetzt: %2 hat keinen Platz dafür. PNG behält sie.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was written without the transparency of the picture: %2 has no place for it. PNG keeps it.</source>
        <translation>&apos;%1&apos; wurde ohne die Transparenz des Bildes geschrieben: %2 hat keinen Platz dafür. PNG behält sie.</translation>
    </message>
    <message>
        <source>PCX with indexed colours</source>
        <translation>PCX mit indizierten Farben</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was replaced without what is half transparent in the picture: GIF has no place for it. PNG keeps it.</source>
        <translation>&apos;%1&apos; wurde ohne das ersetzt, was im Bild halb durchsichtig ist: GIF hat keinen Platz dafür. PNG behält es.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was written without what is half transparent in the picture: GIF has no place for it. PNG keeps it.</source>
        <translation>&apos;%1&apos; wurde ohne das geschrieben, was im Bild halb durchsichtig ist: GIF hat keinen Platz dafür. PNG behält es.</translation>
    </message>
</context>
<context>
    <name>Operations::ImageNumbers</name>
    <message>
        <source>&apos;%1&apos; does not tell its group and number: it gets the next free one, %2.</source>
        <translation>„%1“ nennt Gruppe und Nummer nicht: Es bekommt die nächste freie, %2.</translation>
    </message>
    <message>
        <source>What &apos;%1&apos; tells is taken already: it gets the next free number, %2.</source>
        <translation>Was „%1“ nennt, ist schon vergeben: Es bekommt die nächste freie Nummer, %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; replaces the sprite %2.</source>
        <translation>„%1“ ersetzt das Sprite %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is the same picture as &apos;%2&apos;: they are one sprite.</source>
        <translation>„%1“ ist dasselbe Bild wie „%2“: Sie werden ein Sprite.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not tell its group and number. Expected a name such as &apos;200-3&apos;, or a group for all that tell none.</source>
        <translation>„%1“ nennt Gruppe und Nummer nicht. Erwartet wird ein Name wie „200-3“ oder eine Gruppe für alle, die keine nennen.</translation>
    </message>
    <message>
        <source>There is a sprite %1 already, which &apos;%2&apos; would replace. Nothing is changed.</source>
        <translation>Es gibt schon ein Sprite %1, das „%2“ ersetzen würde. Nichts ist geändert.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; both go to %3.</source>
        <translation>„%1“ und „%2“ haben beide das Ziel %3.</translation>
    </message>
    <message>
        <source>The group %1 has no room for &apos;%2&apos;.</source>
        <translation>Die Gruppe %1 hat keinen Platz für „%2“.</translation>
    </message>
    <message>
        <source>Write {group} and {number}, or one of them, once each, as in &apos;walk_{number}&apos;.</source>
        <translation>{group} und {number} oder eins davon schreiben, jedes einmal, wie in „walk_{number}“.</translation>
    </message>
</context>
<context>
    <name>Operations::ImportImage</name>
    <message>
        <source>Cannot read &apos;%1&apos;: %2.</source>
        <translation>„%1“ ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no sheet. %2</source>
        <translation>„%1“ ist kein Bogen. %2</translation>
    </message>
    <message>
        <source>The picture of &apos;%1&apos; is not beside it. Expected &apos;%2&apos; in the same folder.</source>
        <translation>Das Bild zu „%1“ liegt nicht daneben. Erwartet wird „%2“ im selben Ordner.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is spread over more than %2 pictures.</source>
        <translation>„%1“ ist auf mehr als %2 Bilder verteilt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names &apos;%2&apos;, which is not beside it.</source>
        <translation>„%1“ nennt „%2“, das nicht daneben liegt.</translation>
    </message>
    <message>
        <source>None of the frames of &apos;%1&apos; lies on its picture.</source>
        <translation>Keins der Einzelbilder von „%1“ liegt auf seinem Bild.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is larger than a sprite can be, %2 by %2.</source>
        <translation>„%1“ ist größer, als ein Sprite sein kann: %2 mal %2.</translation>
    </message>
    <message>
        <source>The pictures of &apos;%1&apos; are too large together. Cut the sheet into several.</source>
        <translation>Die Bilder von „%1“ sind zusammen zu groß. Teilen Sie das Blatt in mehrere.</translation>
    </message>
</context>
<context>
    <name>Operations::OpenAnimation</name>
    <message>
        <source>There is no file or folder &apos;%1&apos;.</source>
        <translation>Es gibt keine Datei und keinen Ordner &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names its own sprites. &apos;--sprites&apos; is for a single file of animations.</source>
        <translation>&apos;%1&apos; nennt seine eigenen Sprites. &apos;--sprites&apos; gilt für eine einzelne Datei mit Animationen.</translation>
    </message>
    <message>
        <source>Animation &apos;%1&apos; is in several files: %2. Name one of them in place of &apos;%3&apos;, with &apos;--sprites&apos;.</source>
        <translation>Die Animation &apos;%1&apos; steht in mehreren Dateien: %2. Bitte eine davon anstelle von &apos;%3&apos; nennen, mit &apos;--sprites&apos;.</translation>
    </message>
    <message>
        <source>Animation &apos;%1&apos; is in several projects. Name one of them in place of &apos;%2&apos;: %3.</source>
        <translation>Die Animation &apos;%1&apos; steht in mehreren Projekten. Bitte eines davon anstelle von &apos;%2&apos; nennen: %3.</translation>
    </message>
    <message>
        <source>There is no character or stage in &apos;%1&apos;.</source>
        <translation>In &apos;%1&apos; gibt es keine Figur und keine Bühne.</translation>
    </message>
    <message>
        <source>There is no animation &apos;%1&apos; in &apos;%2&apos;. %3</source>
        <translation>Es gibt keine Animation &apos;%1&apos; in &apos;%2&apos;. %3</translation>
    </message>
</context>
<context>
    <name>Operations::OutputFiles</name>
    <message>
        <source>&apos;%1&apos; is one file, and there are %2 to write. Name a folder, or a pattern such as &apos;%3&apos;.</source>
        <translation>&apos;%1&apos; ist eine Datei, zu schreiben sind %2. Bitte einen Ordner oder ein Muster wie &apos;%3&apos; nennen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; would both become &apos;%3&apos;. Write them to different folders.</source>
        <translation>&apos;%1&apos; und &apos;%2&apos; würden beide zu &apos;%3&apos;. Bitte in verschiedene Ordner schreiben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no plain file and cannot be replaced.</source>
        <translation>&apos;%1&apos; ist keine gewöhnliche Datei und lässt sich nicht ersetzen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is there already. Nothing is written.</source>
        <translation>&apos;%1&apos; ist schon da. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>%1 files are there already, such as &apos;%2&apos;. Nothing is written.</source>
        <translation>%1 Dateien sind schon da, etwa &apos;%2&apos;. Nichts wurde geschrieben.</translation>
    </message>
</context>
<context>
    <name>Operations::PaletteEdits</name>
    <message>
        <source>The record of the palette %1 in the file is broken. Nothing is changed. Remove broken records first, or leave it out.</source>
        <translation>Der Eintrag der Palette %1 in der Datei ist beschädigt. Nichts wird geändert. Zuerst beschädigte Einträge entfernen, oder diese Palette auslassen.</translation>
    </message>
    <message>
        <source>Reorder palette</source>
        <translation>Palette umordnen</translation>
    </message>
    <message>
        <source>Replace colour</source>
        <translation>Farbe ersetzen</translation>
    </message>
    <message>
        <source>Make a ramp</source>
        <translation>Farbverlauf anlegen</translation>
    </message>
    <message>
        <source>Duplicate palette</source>
        <translation>Palette duplizieren</translation>
    </message>
    <message>
        <source>Shift hue</source>
        <translation>Farbton verschieben</translation>
    </message>
</context>
<context>
    <name>Operations::PaletteUses</name>
    <message>
        <source>Uses of colours</source>
        <translation>Verwendung der Farben</translation>
    </message>
</context>
<context>
    <name>Operations::PaletteWork</name>
    <message>
        <source>Palettes</source>
        <translation>Paletten</translation>
    </message>
</context>
<context>
    <name>Operations::RecoveryCopy</name>
    <message>
        <source>It is no copy of Zorv.</source>
        <translation>Es ist keine Kopie von Zorv.</translation>
    </message>
    <message>
        <source>The copy is damaged: it is cut, or its checksum is wrong.</source>
        <translation>Die Kopie ist beschädigt: Sie ist abgeschnitten, oder ihre Prüfsumme ist falsch.</translation>
    </message>
    <message>
        <source>Another version of Zorv made the copy. Open it with that one.</source>
        <translation>Die Kopie stammt von einer anderen Version von Zorv. Bitte mit dieser öffnen.</translation>
    </message>
    <message>
        <source>The copy has no sense.</source>
        <translation>Die Kopie ergibt keinen Sinn.</translation>
    </message>
</context>
<context>
    <name>Operations::RecoveryKeeper</name>
    <message>
        <source>bytes are missing</source>
        <translation>Bytes fehlen</translation>
    </message>
    <message>
        <source>Unsaved work cannot be put aside. %1</source>
        <translation>Ungespeicherte Arbeit kann nicht gesichert werden. %1</translation>
    </message>
    <message>
        <source>Unsaved work cannot be put aside. Save often, and make room on the disk. %1</source>
        <translation>Ungespeicherte Arbeit kann nicht gesichert werden. Speichern Sie oft, und schaffen Sie Platz auf der Festplatte. %1</translation>
    </message>
</context>
<context>
    <name>Operations::ReferenceIndex</name>
    <message>
        <source>palette %1</source>
        <translation>Palette %1</translation>
    </message>
    <message>
        <source>sprite %1</source>
        <translation>Sprite %1</translation>
    </message>
    <message>
        <source>sound %1</source>
        <translation>Klang %1</translation>
    </message>
    <message>
        <source>Looking for names</source>
        <translation>Namen werden gesucht</translation>
    </message>
</context>
<context>
    <name>Operations::Rename</name>
    <message>
        <source>%1 does not come back byte for byte from its encoding, %2. Save it in UTF-8 first.</source>
        <translation>%1 kommt aus seiner Codierung, %2, nicht Byte für Byte zurück. Bitte erst in UTF-8 speichern.</translation>
    </message>
    <message>
        <source>%1, line %2: The encoding %3 cannot hold the name. Choose another one, or save the file in UTF-8 first.</source>
        <translation>%1, Zeile %2: Die Codierung %3 hat nicht alle Zeichen des Namens. Bitte einen anderen wählen oder die Datei erst in UTF-8 speichern.</translation>
    </message>
    <message>
        <source>%1 would not be read as it is meant with this name. Choose another one.</source>
        <translation>%1 würde mit diesem Namen nicht so gelesen, wie es gemeint ist. Bitte einen anderen wählen.</translation>
    </message>
    <message>
        <source>%1, line %2: Only a word can stand here, of letters, digits, &apos;_&apos; and &apos;-&apos;. Choose another name.</source>
        <translation>%1, Zeile %2: Hier kann nur ein Wort aus Buchstaben, Ziffern, &apos;_&apos; und &apos;-&apos; stehen. Bitte einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>It is called &apos;%1&apos; already.</source>
        <translation>Der Name ist schon &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leads out of the game folder, or to the main file. Choose another name.</source>
        <translation>&apos;%1&apos; führt aus dem Ordner des Spiels hinaus oder zur Hauptdatei. Bitte einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>There is a file &apos;%1&apos; already. Choose another name.</source>
        <translation>Es gibt schon eine Datei &apos;%1&apos;. Bitte einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>There is no folder &apos;%1&apos;. Make it first.</source>
        <translation>Es gibt keinen Ordner &apos;%1&apos;. Bitte erst anlegen.</translation>
    </message>
    <message>
        <source>The name of the file has to end in &apos;.%1&apos; as before: that tells what it is.</source>
        <translation>Der Name der Datei muss wie bisher auf &apos;.%1&apos; enden: Das sagt, was sie ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a main file, which no line has to name. Close the project, and rename the file by itself.</source>
        <translation>&apos;%1&apos; ist eine Hauptdatei, die keine Zeile nennen muss. Bitte das Projekt schließen und die Datei selbst umbenennen.</translation>
    </message>
    <message>
        <source>%1 has a &apos;%2&apos; already.</source>
        <translation>%1 hat schon &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>%1, line %2, names &apos;%3&apos; already.</source>
        <translation>%1, Zeile %2, nennt schon &apos;%3&apos;.</translation>
    </message>
    <message numerus="yes">
        <source>%n more places name it.</source>
        <translation>
            <numerusform>%n weitere Stelle nennt es.</numerusform>
            <numerusform>%n weitere Stellen nennen es.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has changes that are not saved. Save them first.</source>
        <translation>%1 hat Änderungen, die nicht gespeichert sind. Bitte erst speichern.</translation>
    </message>
    <message>
        <source>%1 is write-protected. Allow writing to it first.</source>
        <translation>%1 ist schreibgeschützt. Bitte erst das Schreiben erlauben.</translation>
    </message>
    <message>
        <source>%1 belongs to several projects, and &apos;%2&apos; lies elsewhere for each. Choose another folder.</source>
        <translation>%1 gehört zu mehreren Projekten, und &apos;%2&apos; liegt für jedes anderswo. Bitte einen anderen Ordner wählen.</translation>
    </message>
    <message>
        <source>%1 has a palette &apos;%2&apos;: it can only be called by a group and a number.</source>
        <translation>%1 hat eine Palette &apos;%2&apos;: Sie kann nur eine Gruppe und eine Nummer als Namen haben.</translation>
    </message>
    <message>
        <source>%1 is a folder of images. Give its image the new number there, or convert it to a sprite file.</source>
        <translation>%1 ist ein Ordner mit Bildern. Bitte dem Bild dort die neue Nummer geben oder eine Spritedatei daraus machen.</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;; only the lines that name it change.</source>
        <translation>Es gibt keine Datei &apos;%1&apos;; nur die Zeilen, die sie nennen, ändern sich.</translation>
    </message>
    <message>
        <source>It is the same thing for projects that share files with this one, and changes there too: %1.</source>
        <translation>Für Projekte, die sich Dateien mit diesem teilen, ist es dasselbe und ändert sich dort auch: %1.</translation>
    </message>
    <message>
        <source>Engines look for &apos;%1&apos; by this name, and will not find it any more.</source>
        <translation>Engines suchen &apos;%1&apos; unter diesem Namen und finden es dann nicht mehr.</translation>
    </message>
    <message>
        <source>Engines know &apos;%1&apos; by this name, and will use it.</source>
        <translation>Engines kennen &apos;%1&apos; unter diesem Namen und werden es verwenden.</translation>
    </message>
    <message>
        <source>%1 has been changed meanwhile. Try again.</source>
        <translation>%1 wurde inzwischen geändert. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>%1: %2 is broken and keeps its number. Remove or replace it first.</source>
        <translation>%1: %2 ist beschädigt und behält seine Nummer. Entfernen oder ersetzen Sie es zuerst.</translation>
    </message>
</context>
<context>
    <name>Operations::SessionFolder</name>
    <message>
        <source>Cannot make a folder in %1. Check its permissions, and that there is room on the disk.</source>
        <translation>In %1 kann kein Ordner angelegt werden. Bitte die Rechte prüfen und ob auf dem Datenträger Platz ist.</translation>
    </message>
</context>
<context>
    <name>Operations::SoundEdits</name>
    <message>
        <source>it is silent</source>
        <translation>er ist still</translation>
    </message>
    <message>
        <source>it is too short: a loudness takes 0.4 seconds</source>
        <translation>er ist zu kurz: eine Lautheit braucht 0,4 Sekunden</translation>
    </message>
    <message>
        <source>it reaches %1 LUFS: louder, its peaks would be above %2 dB</source>
        <translation>er erreicht %1 LUFS: lauter lägen seine Spitzen über %2 dB</translation>
    </message>
    <message>
        <source>it is broken</source>
        <translation>er ist beschädigt</translation>
    </message>
    <message>
        <source>Sound %1 stays as it is: %2.</source>
        <translation>Klang %1 bleibt, wie er ist: %2.</translation>
    </message>
    <message>
        <source>Sound %1: %2.</source>
        <translation>Klang %1: %2.</translation>
    </message>
    <message>
        <source>There is no such sound.</source>
        <translation>Es gibt keinen solchen Klang.</translation>
    </message>
    <message>
        <source>it has no such part, and takes %1 seconds</source>
        <translation>er hat keinen solchen Teil und dauert %1 Sekunden</translation>
    </message>
    <message>
        <source>it cannot be measured</source>
        <translation>er lässt sich nicht messen</translation>
    </message>
</context>
<context>
    <name>Operations::SoundFormats</name>
    <message>
        <source>it is damaged, or of a format that is not known here</source>
        <translation>sie ist beschädigt oder von einem Format, das hier nicht bekannt ist</translation>
    </message>
    <message>
        <source>it declares more than a gigabyte of samples</source>
        <translation>sie gibt mehr als ein Gigabyte an Samples an</translation>
    </message>
    <message>
        <source>it has no samples, or they are damaged</source>
        <translation>sie hat keine Samples, oder sie sind beschädigt</translation>
    </message>
</context>
<context>
    <name>Operations::SoundLoudness</name>
    <message>
        <source>too short</source>
        <translation>zu kurz</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>still</translation>
    </message>
    <message>
        <source>not to be measured</source>
        <translation>nicht messbar</translation>
    </message>
</context>
<context>
    <name>Operations::SoundWork</name>
    <message>
        <source>Sound %1 is broken.</source>
        <translation>Klang %1 ist beschädigt.</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: sounds are written as .wav.</source>
        <translation>&apos;%1&apos; lässt sich nicht schreiben: Klänge werden als .wav geschrieben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has a form that a sound file cannot hold. Expected 1 to 8 channels of 8, 16, 24 or 32 bits, and 1 to 384000 frames a second.</source>
        <translation>&apos;%1&apos; hat eine Form, die eine Klangdatei nicht aufnimmt. Erwartet: 1 bis 8 Kanäle mit 8, 16, 24 oder 32 Bit und 1 bis 384000 Frames je Sekunde.</translation>
    </message>
    <message>
        <source>Cannot open &apos;%1&apos;: %2. Check that the file is there and may be read.</source>
        <translation>&apos;%1&apos; lässt sich nicht öffnen: %2. Bitte prüfen, ob die Datei da ist und gelesen werden darf.</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: it is no WAV file with plain samples (PCM).</source>
        <translation>&apos;%1&apos; lässt sich nicht lesen: Es ist keine WAV-Datei mit einfachen Abtastwerten (PCM).</translation>
    </message>
    <message>
        <source>There is no such sound.</source>
        <translation>Es gibt keinen solchen Klang.</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Import sounds</source>
        <translation>Klänge einlesen</translation>
    </message>
    <message>
        <source>There is a sound %1 already, which &apos;%2&apos; would replace. Nothing is changed.</source>
        <translation>Es gibt schon einen Klang %1, den &apos;%2&apos; ersetzen würde. Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>ADPCM</source>
        <translation>ADPCM</translation>
    </message>
    <message>
        <source>floating point</source>
        <translation>Gleitkomma</translation>
    </message>
    <message>
        <source>A-law</source>
        <translation>A-law</translation>
    </message>
    <message>
        <source>mu-law</source>
        <translation>mu-law</translation>
    </message>
    <message>
        <source>MP3</source>
        <translation>MP3</translation>
    </message>
    <message>
        <source>the extensible form</source>
        <translation>die erweiterbare Form</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: its samples are not plain ones (PCM), but of format %2. Save it as plain WAV, of 16 bits for example, with the program that made it.</source>
        <translation>&apos;%1&apos; lässt sich nicht lesen: Die Samples sind nicht einfach (PCM), sondern vom Format %2. Bitte mit dem Programm, von dem die Datei stammt, als einfaches WAV speichern, zum Beispiel mit 16 Bit.</translation>
    </message>
    <message numerus="yes">
        <source>Cannot read &apos;%1&apos;: the sizes in it do not fit, and lead to none of its %n frame(s).</source>
        <translation>
            <numerusform>&apos;%1&apos; lässt sich nicht lesen: Die Größen darin passen nicht und führen nicht zu dem %n Frame.</numerusform>
            <numerusform>&apos;%1&apos; lässt sich nicht lesen: Die Größen darin passen nicht und führen zu keinem der %n Frames.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Of the %n frame(s) in &apos;%1&apos; %2 are read: the sizes in it do not fit.</source>
        <translation>
            <numerusform>Von dem %n Frame in &apos;%1&apos; werden %2 gelesen: Die Größen in der Datei passen nicht.</numerusform>
            <numerusform>Von den %n Frames in &apos;%1&apos; werden %2 gelesen: Die Größen in der Datei passen nicht.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is cut short: of %n frame(s) it has %2.</source>
        <translation>
            <numerusform>&apos;%1&apos; ist abgeschnitten: Von %n Frame sind %2 da.</numerusform>
            <numerusform>&apos;%1&apos; ist abgeschnitten: Von %n Frames sind %2 da.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2.</source>
        <translation>&apos;%1&apos; kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: sounds are WAV, FLAC, Ogg Vorbis and Opus files (.wav, .flac, .ogg, .oga, .opus).</source>
        <translation>&apos;%1&apos; kann nicht gelesen werden: Klänge sind WAV-, FLAC-, Ogg-Vorbis- und Opus-Dateien (.wav, .flac, .ogg, .oga, .opus).</translation>
    </message>
</context>
<context>
    <name>Operations::SpriteEdits</name>
    <message>
        <source>Sprite %1 stays as it is: %2.</source>
        <translation>Sprite %1 bleibt, wie es ist: %2.</translation>
    </message>
    <message>
        <source>Sprite %1 would become %2,%3. Groups and numbers go from 0 to %4. Nothing is changed.</source>
        <translation>Sprite %1 würde zu %2,%3. Gruppen und Nummern gehen von 0 bis %4. Nichts wird geändert.</translation>
    </message>
    <message>
        <source>Recolour sprites</source>
        <translation>Sprites umfärben</translation>
    </message>
    <message>
        <source>Sprite %1 stays as it is: it is of true colour. Have its pixels take the nearest colours instead.</source>
        <translation>Sprite %1 bleibt, wie es ist: Es hat Echtfarben. Stattdessen seine Pixel die nächsten Farben annehmen lassen.</translation>
    </message>
    <message>
        <source>The axis of sprite %1 would be %2,%3, too far away. Nothing is changed.</source>
        <translation>Die Achse von Sprite %1 läge bei %2,%3, zu weit entfernt. Nichts wird geändert.</translation>
    </message>
    <message>
        <source>Set axis</source>
        <translation>Achse setzen</translation>
    </message>
    <message>
        <source>Two sprites would be called %1. Nothing is changed.</source>
        <translation>Zwei Sprites würden %1 heißen. Nichts wird geändert.</translation>
    </message>
    <message>
        <source>Renumber sprites</source>
        <translation>Sprites neu nummerieren</translation>
    </message>
</context>
<context>
    <name>Operations::SpriteExport</name>
    <message>
        <source>There is no palette %1.</source>
        <translation>Es gibt keine Palette %1.</translation>
    </message>
    <message>
        <source>There is no such sprite.</source>
        <translation>Es gibt keinen solchen Sprite.</translation>
    </message>
    <message>
        <source>Sprite %1 has no pixels, or they are broken.</source>
        <translation>Sprite %1 hat keine Pixel, oder sie sind beschädigt.</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>There is no such palette.</source>
        <translation>Es gibt keine solche Palette.</translation>
    </message>
</context>
<context>
    <name>Operations::SpriteImport</name>
    <message>
        <source>Import sprites</source>
        <translation>Sprites einlesen</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>&apos;%1&apos; would lose something as %2. Choose another codec.</source>
        <translation>&apos;%1&apos; würde als %2 etwas verlieren. Bitte ein anderes Verfahren wählen.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
</context>
<context>
    <name>Operations::SpriteSheet</name>
    <message>
        <source>The sheet is larger than the memory. Select fewer sprites.</source>
        <translation>Der Bogen ist größer als der Speicher. Bitte weniger Sprites auswählen.</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>Sprite %1 has no pixels, or they are broken.</source>
        <translation>Sprite %1 hat keine Pixel, oder sie sind beschädigt.</translation>
    </message>
    <message>
        <source>There is no such sprite.</source>
        <translation>Es gibt keinen solchen Sprite.</translation>
    </message>
    <message>
        <source>The sheet would be too large. Select fewer sprites.</source>
        <translation>Der Bogen wäre zu groß. Bitte weniger Sprites auswählen.</translation>
    </message>
</context>
<context>
    <name>Operations::Subject</name>
    <message>
        <source>Expected a group and a number from 0 to 65535, such as 200,0; found &apos;%1&apos;.</source>
        <translation>Erwartet wird eine Gruppe und eine Nummer von 0 bis 65535 wie 200,0; gefunden wurde &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Expected a name on one line; found &apos;%1&apos;.</source>
        <translation>Erwartet wird ein Name in einer Zeile; gefunden wurde &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Expected a path such as &apos;hero.anim&apos;, as the lines of the project have it; found &apos;%1&apos;.</source>
        <translation>Erwartet wird ein Pfad wie &apos;hero.anim&apos;, so wie er in den Zeilen des Projekts steht; gefunden wurde &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Expected a word of letters, digits, &apos;_&apos; and &apos;-&apos; that does not start with &apos;-&apos;; found &apos;%1&apos;.</source>
        <translation>Erwartet wird ein Wort aus Buchstaben, Ziffern, &apos;_&apos; und &apos;-&apos;, das nicht mit &apos;-&apos; beginnt; gefunden wurde &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>There is no animation &apos;%1&apos;, and nothing names it.</source>
        <translation>Es gibt keine Animation &apos;%1&apos;, und nichts nennt sie.</translation>
    </message>
    <message>
        <source>There is no move &apos;%1&apos;, and nothing names it.</source>
        <translation>Es gibt keine Aktion &apos;%1&apos;, und nichts nennt sie.</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;, and nothing names it.</source>
        <translation>Es gibt keinen Befehl &apos;%1&apos;, und nichts nennt ihn.</translation>
    </message>
    <message>
        <source>There is no palette &apos;%1&apos;.</source>
        <translation>Es gibt keine Palette &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>There is no sprite &apos;%1&apos;, and nothing names it.</source>
        <translation>Es gibt kein Sprite &apos;%1&apos;, und nichts nennt es.</translation>
    </message>
    <message>
        <source>There is no sound &apos;%1&apos;, and nothing names it.</source>
        <translation>Es gibt keinen Klang &apos;%1&apos;, und nichts nennt ihn.</translation>
    </message>
    <message>
        <source>Nothing names a file &apos;%1&apos;.</source>
        <translation>Nichts nennt eine Datei &apos;%1&apos;.</translation>
    </message>
</context>
<context>
    <name>Operations::TextSearch</name>
    <message>
        <source>The expression takes too long there. Write it in a simpler way.</source>
        <translation>Der Ausdruck braucht dort zu lange. Schreiben Sie ihn einfacher.</translation>
    </message>
</context>
<context>
    <name>Operations::Uses</name>
    <message>
        <source>sprite %1</source>
        <translation>Sprite %1</translation>
    </message>
    <message>
        <source>remap from %1 to %2</source>
        <translation>Umfärbung von %1 auf %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PalDlg</name>
    <message>
        <source>Reversed</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Image&apos;s palette, if not already added</source>
        <translation>Palette des Bildes; sie kommt hinzu, wenn sie fehlt</translation>
    </message>
    <message>
        <source>Force the specified palette (adapt the image)</source>
        <translation>Die gewählte Palette; das Bild wird ihr angepasst</translation>
    </message>
    <message>
        <source>Exchange with the specified palette</source>
        <translation>Die gewählte Palette nimmt die Farben des Bildes an</translation>
    </message>
    <message>
        <source>Select the palette in the list.</source>
        <translation>Bitte die Palette in der Liste wählen.</translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) will show the colors of the image.</source>
        <translation>
            <numerusform>%n Sprite zeigt dann die Farben des Bildes.</numerusform>
            <numerusform>%n Sprites zeigen dann die Farben des Bildes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Player::Hud</name>
    <message numerus="yes">
        <source>%n hits</source>
        <translation>
            <numerusform>%n Treffer</numerusform>
            <numerusform>%n Treffer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n damage</source>
        <translation>
            <numerusform>%n Schaden</numerusform>
            <numerusform>%n Schaden</numerusform>
        </translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Runde %1</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Unentschieden</translation>
    </message>
    <message>
        <source>Time over</source>
        <translation>Zeit um</translation>
    </message>
    <message>
        <source>K.O.</source>
        <translation>K.O.</translation>
    </message>
    <message>
        <source>%1 wins</source>
        <translation>%1 gewinnt</translation>
    </message>
    <message>
        <source>A drawn match</source>
        <translation>Ein unentschiedener Kampf</translation>
    </message>
    <message>
        <source>%1 wins the match</source>
        <translation>%1 gewinnt den Kampf</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Player::Keymap</name>
    <message>
        <source>Keys, line %1: expected a line such as &apos;1 light = F&apos;; found &apos;%2&apos;.</source>
        <translation>Tasten, Zeile %1: Erwartet war eine Zeile wie &apos;1 light = F&apos;, gefunden wurde &apos;%2&apos;.</translation>
    </message>
</context>
<context>
    <name>Player::LoadedMatch</name>
    <message>
        <source>There is no folder &apos;%1&apos;.</source>
        <translation>Es gibt keinen Ordner &apos;%1&apos;.</translation>
    </message>
</context>
<context>
    <name>Player::Pictures</name>
    <message>
        <source>Sprite %1 is broken.</source>
        <translation>Das Sprite %1 ist beschädigt.</translation>
    </message>
    <message>
        <source>There is no sprite %1.</source>
        <translation>Es gibt kein Sprite %1.</translation>
    </message>
</context>
<context>
    <name>Player::PlayWindow</name>
    <message>
        <source>Space	pause</source>
        <translation>Leertaste	Pause</translation>
    </message>
    <message>
        <source>Page up, Page down	a tick back, a tick on</source>
        <translation>Bild auf, Bild ab	ein Tick zurück, ein Tick weiter</translation>
    </message>
    <message>
        <source>F3, F4	boxes; frames and inputs</source>
        <translation>F3, F4	Boxen; Frames und Eingaben</translation>
    </message>
    <message>
        <source>F5	both to their places</source>
        <translation>F5	beide an ihre Plätze</translation>
    </message>
    <message>
        <source>F6	what the second one does</source>
        <translation>F6	was der zweite tut</translation>
    </message>
    <message>
        <source>F7, F10	speed; a match without end</source>
        <translation>F7, F10	Tempo; ein Kampf ohne Ende</translation>
    </message>
    <message>
        <source>F8, F9	another costume</source>
        <translation>F8, F9	ein anderes Kostüm</translation>
    </message>
    <message>
        <source>F2	what is wrong with the files</source>
        <translation>F2	was an den Dateien nicht stimmt</translation>
    </message>
    <message>
        <source>F12, Shift+F12	the shown frame in the editor</source>
        <translation>F12, Umschalt+F12	der gezeigte Frame im Editor</translation>
    </message>
    <message>
        <source>F11, Esc	the whole screen; the end</source>
        <translation>F11, Esc	der ganze Bildschirm; das Ende</translation>
    </message>
    <message>
        <source>%1 against %2</source>
        <translation>%1 gegen %2</translation>
    </message>
    <message>
        <source>No editor is there. Start the player from the editor, with F5.</source>
        <translation>Kein Editor ist da. Starten Sie den Player im Editor, mit F5.</translation>
    </message>
    <message>
        <source>The keys can be others: %1</source>
        <translation>Die Tasten können andere sein: %1</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
</context>
<context>
    <name>Player::Script</name>
    <message>
        <source>Line %1: expected a number of ticks and what is held, as in &apos;20 F+L -&apos;, or &apos;places&apos;, &apos;life&apos; or &apos;power&apos; with two numbers; found &apos;%2&apos;.</source>
        <translation>Zeile %1: Erwartet war eine Zahl von Ticks und was gehalten wird, wie in &apos;20 F+L -&apos;, oder &apos;places&apos;, &apos;life&apos; oder &apos;power&apos; mit zwei Zahlen; gefunden wurde &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Line %1: the script takes more than %2 ticks.</source>
        <translation>Zeile %1: Das Skript dauert länger als %2 Ticks.</translation>
    </message>
</context>
<context>
    <name>Player::SoundBank</name>
    <message>
        <source>%1: there is no sound %2, or it is broken.</source>
        <translation>%1: Es gibt keinen Klang %2, oder er ist beschädigt.</translation>
    </message>
    <message>
        <source>Cannot play &apos;%1&apos;.</source>
        <translation>&apos;%1&apos; kann nicht gespielt werden.</translation>
    </message>
</context>
<context>
    <name>Player::TrainingHud</name>
    <message>
        <source>played</source>
        <translation>wird gespielt</translation>
    </message>
    <message>
        <source>stands</source>
        <translation>steht</translation>
    </message>
    <message>
        <source>crouches</source>
        <translation>duckt sich</translation>
    </message>
    <message>
        <source>guards</source>
        <translation>blockt</translation>
    </message>
    <message>
        <source>jumps</source>
        <translation>springt</translation>
    </message>
    <message>
        <source>does anything</source>
        <translation>tut irgendetwas</translation>
    </message>
    <message>
        <source>is recorded</source>
        <translation>wird aufgenommen</translation>
    </message>
    <message>
        <source>replays</source>
        <translation>wiederholt</translation>
    </message>
    <message>
        <source>start %1, active %2, recovery %3</source>
        <translation>Start %1, aktiv %2, Erholung %3</translation>
    </message>
    <message>
        <source>, advantage %1</source>
        <translation>, Vorteil %1</translation>
    </message>
    <message>
        <source>paused, tick %1</source>
        <translation>angehalten, Tick %1</translation>
    </message>
    <message>
        <source>speed 1/%1</source>
        <translation>Tempo 1/%1</translation>
    </message>
    <message>
        <source>the second one %1</source>
        <translation>der zweite %1</translation>
    </message>
    <message>
        <source>without end</source>
        <translation>ohne Ende</translation>
    </message>
</context>
<context>
    <name>RemapDlg</name>
    <message>
        <source>Remap</source>
        <translation>Ersatz für Paletten</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>ResampleDlg</name>
    <message>
        <source>Resample</source>
        <translation>Abtastrate ändern</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>%1 bits</source>
        <translation>%1 Bit</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Abtastrate:</translation>
    </message>
    <message>
        <source>Bits per sample:</source>
        <translation>Bit je Abtastwert:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>Kanäle:</translation>
    </message>
</context>
<context>
    <name>ResizeFilters</name>
    <message>
        <source>Nearest pixel</source>
        <translation>Nächster Bildpunkt</translation>
    </message>
    <message>
        <source>Mixed colors</source>
        <translation>Gemischte Farben</translation>
    </message>
    <message>
        <source>Scale2x, sharp edges</source>
        <translation>Scale2x, scharfe Kanten</translation>
    </message>
    <message>
        <source>hq2x, smooth edges</source>
        <translation>hq2x, weiche Kanten</translation>
    </message>
</context>
<context>
    <name>RotImgDlg</name>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>° clockwise</source>
        <translation>° im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>&amp;Angle:</source>
        <translation>&amp;Winkel:</translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation>F&amp;ilter:</translation>
    </message>
</context>
<context>
    <name>Rules::CodeText</name>
    <message>
        <source>Cannot read &apos;%1&apos;: %2. Check its permissions.</source>
        <translation>&apos;%1&apos; kann nicht gelesen werden: %2. Prüfen Sie die Rechte.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies outside of the game.</source>
        <translation>&apos;%1&apos; liegt außerhalb des Spiels.</translation>
    </message>
</context>
<context>
    <name>Rules::GameReader</name>
    <message>
        <source>&apos;%1&apos; has more than %2 commands. Those behind are left out.</source>
        <translation>&apos;%1&apos; hat mehr als %2 Kommandos. Die dahinter fehlen.</translation>
    </message>
    <message>
        <source>There is no file &apos;*%1&apos; in &apos;%2&apos;.</source>
        <translation>Es gibt keine Datei &apos;*%1&apos; in &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>There is no &apos;%1&apos; in &apos;%2&apos;. %3</source>
        <translation>Es gibt kein &apos;%1&apos; in &apos;%2&apos;. %3</translation>
    </message>
</context>
<context>
    <name>RunDlg</name>
    <message>
        <source>Run in Engine</source>
        <translation>In Engine starten</translation>
    </message>
    <message>
        <source>Choose the target:</source>
        <translation>Ziel wählen:</translation>
    </message>
</context>
<context>
    <name>SnipDlg</name>
    <message>
        <source>Save code snippet</source>
        <translation>Codebaustein speichern</translation>
    </message>
    <message>
        <source>Do you want to save the changes of the snippet?</source>
        <translation>Sollen die Änderungen des Bausteins gespeichert werden?</translation>
    </message>
    <message>
        <source>Extensible Markup Language (*.xml)</source>
        <translation>Extensible Markup Language (*.xml)</translation>
    </message>
    <message>
        <source>Save for translation</source>
        <translation>Für die Übersetzung speichern</translation>
    </message>
    <message>
        <source>Qt translation sources (*.ts)</source>
        <translation>Qt-Übersetzungsquellen (*.ts)</translation>
    </message>
    <message>
        <source>Two fields have the name %1. Rename one of them.</source>
        <translation>Zwei Felder haben den Namen %1. Benennen Sie eines davon um.</translation>
    </message>
    <message>
        <source>@%1 begins with @%2, which is filled in before it. Move the field %1 up, in front of %2, or rename it.</source>
        <translation>@%1 beginnt mit @%2, das vorher eingesetzt wird. Verschieben Sie das Feld %1 nach oben, vor %2, oder benennen Sie es um.</translation>
    </message>
    <message>
        <source>&amp;Code, in which @ and a name stand for the value of a field, and CURSOR for the place of the cursor:</source>
        <translation>&amp;Code, in dem @ und ein Name für den Wert eines Feldes stehen und CURSOR für den Platz der Schreibmarke:</translation>
    </message>
    <message>
        <source>&amp;Result:</source>
        <translation>&amp;Ergebnis:</translation>
    </message>
    <message>
        <source>&amp;Fields, asked and filled in from top to bottom:</source>
        <translation>&amp;Felder, von oben nach unten gefragt und eingesetzt:</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>H&amp;inzufügen ...</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Bearbeiten ...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>Ei&amp;nfügen</translation>
    </message>
    <message>
        <source>Save for &amp;translation...</source>
        <translation>Für die Übersetzun&amp;g speichern ...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>S&amp;peichern ...</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Code snippet</source>
        <translation>Codebaustein</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>New code snippet</source>
        <translation>Neuer Codebaustein</translation>
    </message>
</context>
<context>
    <name>SnipFieldDlg</name>
    <message>
        <source>Field of a code snippet</source>
        <translation>Feld eines Codebausteins</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>In the code, @ and this name stand for the value.</source>
        <translation>Im Code stehen @ und dieser Name für den Wert.</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>T&amp;ype:</source>
        <translation>T&amp;yp:</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Whole number</source>
        <translation>Ganze Zahl</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>List of items</source>
        <translation>Liste von Einträgen</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Wert:</translation>
    </message>
    <message>
        <source>&amp;Items, one a line:</source>
        <translation>&amp;Einträge, je Zeile einer:</translation>
    </message>
    <message>
        <source>&amp;Values, one a line:</source>
        <translation>&amp;Werte, je Zeile einer:</translation>
    </message>
    <message>
        <source>A comma begins a new item.</source>
        <translation>Ein Komma beginnt einen neuen Eintrag.</translation>
    </message>
</context>
<context>
    <name>SnipFieldsModel</name>
    <message>
        <source>@%1, %2</source>
        <translation>@%1, %2</translation>
    </message>
</context>
<context>
    <name>Snippets</name>
    <message>
        <source>Attack animation</source>
        <comment>snippet</comment>
        <translation>Angriffsanimation</translation>
    </message>
    <message>
        <source>Attack</source>
        <comment>snippet</comment>
        <translation>Angriff</translation>
    </message>
    <message>
        <source>Character head</source>
        <comment>snippet</comment>
        <translation>Kopf einer Figur</translation>
    </message>
    <message>
        <source>Command</source>
        <comment>snippet</comment>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Comment header</source>
        <comment>snippet</comment>
        <translation>Kommentarkopf</translation>
    </message>
    <message>
        <source>Group of commands</source>
        <comment>snippet</comment>
        <translation>Gruppe der Befehle</translation>
    </message>
    <message>
        <source>Music</source>
        <comment>snippet</comment>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Palette</source>
        <comment>snippet</comment>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Special move</source>
        <comment>snippet</comment>
        <translation>Spezialangriff</translation>
    </message>
    <message>
        <source>Stage head</source>
        <comment>snippet</comment>
        <translation>Kopf einer Bühne</translation>
    </message>
    <message>
        <source>Stage layer</source>
        <comment>snippet</comment>
        <translation>Ebene einer Bühne</translation>
    </message>
    <message>
        <source>Standing animation</source>
        <comment>snippet</comment>
        <translation>Standanimation</translation>
    </message>
    <message>
        <source>Throw</source>
        <comment>snippet</comment>
        <translation>Wurf</translation>
    </message>
    <message>
        <source>Walk cycle</source>
        <comment>snippet</comment>
        <translation>Gehzyklus</translation>
    </message>
    <message>
        <source>Number or name</source>
        <comment>identifier</comment>
        <translation>Nummer oder Name</translation>
    </message>
    <message>
        <source>Display name</source>
        <comment>title</comment>
        <translation>Anzeigename</translation>
    </message>
    <message>
        <source>Group of its sprites</source>
        <comment>group</comment>
        <translation>Gruppe ihrer Sprites</translation>
    </message>
    <message>
        <source>Ticks before the hit</source>
        <comment>startup</comment>
        <translation>Ticks vor dem Treffer</translation>
    </message>
    <message>
        <source>Ticks of the hit</source>
        <comment>active</comment>
        <translation>Ticks des Treffers</translation>
    </message>
    <message>
        <source>Ticks after the hit</source>
        <comment>recovery</comment>
        <translation>Ticks nach dem Treffer</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>name</comment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Command</source>
        <comment>command</comment>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Animation</source>
        <comment>shown</comment>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Priority</source>
        <comment>priority</comment>
        <translation>Vorrang</translation>
    </message>
    <message>
        <source>Damage</source>
        <comment>damage</comment>
        <translation>Schaden</translation>
    </message>
    <message>
        <source>Damage when guarded</source>
        <comment>guarded</comment>
        <translation>Schaden bei Abwehr</translation>
    </message>
    <message>
        <source>Guarded</source>
        <comment>level</comment>
        <translation>Abwehr</translation>
    </message>
    <message>
        <source>High</source>
        <comment>level</comment>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Middle</source>
        <comment>level</comment>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Low</source>
        <comment>level</comment>
        <translation>Tief</translation>
    </message>
    <message>
        <source>Ticks of stun</source>
        <comment>stun</comment>
        <translation>Ticks der Betäubung</translation>
    </message>
    <message>
        <source>Author</source>
        <comment>author</comment>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Name of its files</source>
        <comment>file</comment>
        <translation>Name ihrer Dateien</translation>
    </message>
    <message>
        <source>Life</source>
        <comment>life</comment>
        <translation>Leben</translation>
    </message>
    <message>
        <source>Power</source>
        <comment>power</comment>
        <translation>Kraft</translation>
    </message>
    <message>
        <source>Motion</source>
        <comment>motion</comment>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>Button</source>
        <comment>button</comment>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Light</source>
        <comment>button</comment>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>Medium</source>
        <comment>button</comment>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Heavy</source>
        <comment>button</comment>
        <translation>Schwer</translation>
    </message>
    <message>
        <source>Title</source>
        <comment>title</comment>
        <translation>Titel</translation>
    </message>
    <message>
        <source>What stands here</source>
        <comment>what</comment>
        <translation>Was hier steht</translation>
    </message>
    <message>
        <source>Ticks for the whole motion</source>
        <comment>time</comment>
        <translation>Ticks für die ganze Bewegung</translation>
    </message>
    <message>
        <source>Ticks for which a command stays true</source>
        <comment>buffer</comment>
        <translation>Ticks, für die ein Befehl gilt</translation>
    </message>
    <message>
        <source>Sound file</source>
        <comment>path</comment>
        <translation>Klangdatei</translation>
    </message>
    <message>
        <source>Volume in percent</source>
        <comment>volume</comment>
        <translation>Lautstärke in Prozent</translation>
    </message>
    <message>
        <source>Seconds to fade out</source>
        <comment>fade</comment>
        <translation>Sekunden zum Ausblenden</translation>
    </message>
    <message>
        <source>Palette file</source>
        <comment>path</comment>
        <translation>Palettendatei</translation>
    </message>
    <message>
        <source>Button that selects it</source>
        <comment>keys</comment>
        <translation>Taste, die sie wählt</translation>
    </message>
    <message>
        <source>Light</source>
        <comment>keys</comment>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>Medium</source>
        <comment>keys</comment>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Heavy</source>
        <comment>keys</comment>
        <translation>Schwer</translation>
    </message>
    <message>
        <source>Start</source>
        <comment>keys</comment>
        <translation>Start</translation>
    </message>
    <message>
        <source>In the air</source>
        <comment>air</comment>
        <translation>In der Luft</translation>
    </message>
    <message>
        <source>No</source>
        <comment>air</comment>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>air</comment>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Only</source>
        <comment>air</comment>
        <translation>Nur dort</translation>
    </message>
    <message>
        <source>Power that it takes</source>
        <comment>cost</comment>
        <translation>Kraft, die er kostet</translation>
    </message>
    <message>
        <source>Speed forward</source>
        <comment>speed</comment>
        <translation>Geschwindigkeit nach vorn</translation>
    </message>
    <message>
        <source>Half of its width</source>
        <comment>half</comment>
        <translation>Halbe Breite</translation>
    </message>
    <message>
        <source>How far the camera goes to each side</source>
        <comment>camera</comment>
        <translation>Wie weit die Kamera zu jeder Seite geht</translation>
    </message>
    <message>
        <source>Group of its sprite</source>
        <comment>group</comment>
        <translation>Gruppe ihres Sprites</translation>
    </message>
    <message>
        <source>Number of its sprite</source>
        <comment>number</comment>
        <translation>Nummer ihres Sprites</translation>
    </message>
    <message>
        <source>How far it follows the camera</source>
        <comment>follow</comment>
        <translation>Wie weit sie der Kamera folgt</translation>
    </message>
    <message>
        <source>Order; below 0 behind the fighters</source>
        <comment>order</comment>
        <translation>Reihenfolge; unter 0 hinter den Kämpfern</translation>
    </message>
    <message>
        <source>Repeated</source>
        <comment>along</comment>
        <translation>Wiederholt</translation>
    </message>
    <message>
        <source>Not at all</source>
        <comment>along</comment>
        <translation>Gar nicht</translation>
    </message>
    <message>
        <source>Across</source>
        <comment>along</comment>
        <translation>Waagrecht</translation>
    </message>
    <message>
        <source>Down</source>
        <comment>along</comment>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>Both ways</source>
        <comment>along</comment>
        <translation>In beide Richtungen</translation>
    </message>
    <message>
        <source>Ticks of each frame</source>
        <comment>delay</comment>
        <translation>Ticks jedes Bildes</translation>
    </message>
</context>
<context>
    <name>Zorv::AnimationCodeWindow</name>
    <message>
        <source>The animation is no longer in the text. Add a new one, and copy the code there.</source>
        <translation>Die Animation steht nicht mehr im Text. Bitte eine neue anlegen und den Code dorthin kopieren.</translation>
    </message>
    <message>
        <source>The animation has been changed elsewhere since it came into this window. Replace it?</source>
        <translation>Die Animation wurde anderswo geändert, seit sie in dieses Fenster kam. Ersetzen?</translation>
    </message>
    <message>
        <source>This is not the code of one animation. Begin with its head line, and leave out other animations and groups.</source>
        <translation>Das ist nicht der Code einer Animation. Bitte mit ihrer Kopfzeile beginnen und andere Animationen und Gruppen weglassen.</translation>
    </message>
</context>
<context>
    <name>Zorv::AnimationEditor</name>
    <message>
        <source>Confirmation</source>
        <translation>Bestätigung</translation>
    </message>
    <message>
        <source>Identifier:</source>
        <translation>Kennung:</translation>
    </message>
    <message>
        <source>Duplicate animation</source>
        <translation>Animation verdoppeln</translation>
    </message>
    <message>
        <source>There is an animation of this name. Identifier:</source>
        <translation>Eine Animation dieses Namens gibt es schon. Kennung:</translation>
    </message>
    <message>
        <source>This cannot name an animation. Identifier:</source>
        <translation>So kann eine Animation nicht heißen. Kennung:</translation>
    </message>
    <message>
        <source>Insert animation</source>
        <translation>Animation einfügen</translation>
    </message>
    <message>
        <source>Do you really want to delete the animation?</source>
        <translation>Möchten Sie die Animation wirklich löschen?</translation>
    </message>
    <message>
        <source>Do you want to define a new identifier?</source>
        <translation>Möchten Sie eine neue Kennung festlegen?</translation>
    </message>
    <message>
        <source>Add frame</source>
        <translation>Einzelbild hinzufügen</translation>
    </message>
    <message>
        <source>Do you really want to delete the frame?</source>
        <translation>Möchten Sie das Einzelbild wirklich löschen?</translation>
    </message>
    <message>
        <source>Delete frame #%1</source>
        <translation>Einzelbild #%1 löschen</translation>
    </message>
    <message>
        <source>Offset of frame #%1</source>
        <translation>Versatz von Einzelbild #%1</translation>
    </message>
    <message>
        <source>Scale of frame #%1</source>
        <translation>Größe von Einzelbild #%1</translation>
    </message>
    <message>
        <source>Time of frame #%1</source>
        <translation>Zeit von Einzelbild #%1</translation>
    </message>
    <message>
        <source>Flip of frame #%1</source>
        <translation>Spiegelung von Einzelbild #%1</translation>
    </message>
    <message>
        <source>Angle of frame #%1</source>
        <translation>Winkel von Einzelbild #%1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keines</translation>
    </message>
    <message>
        <source>Animation: %1, Frame: %2</source>
        <translation>Animation: %1, Einzelbild: %2</translation>
    </message>
    <message>
        <source>Animation: none, Frame: none</source>
        <translation>Animation: keine, Einzelbild: keines</translation>
    </message>
    <message>
        <source>%1 FPS</source>
        <translation>%1 Bilder/s</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>0 / 0</source>
        <translation>0 / 0</translation>
    </message>
    <message>
        <source>%1 / %2 - %3 ticks</source>
        <translation>%1 / %2 – %3 Ticks</translation>
    </message>
    <message>
        <source>Stage: %1, %2</source>
        <translation>Bühne: %1, %2</translation>
    </message>
    <message>
        <source>Do you really want to replicate Contact boxes of current frame in all its instances?
All existing Contact boxes in these frames will be replaced.</source>
        <translation>Die Kontaktboxen des jetzigen Einzelbilds wirklich in alle Einzelbilder mit diesem Sprite übernehmen?
Alle Kontaktboxen, die diese schon haben, werden ersetzt.</translation>
    </message>
    <message>
        <source>Frames: %1. Contact boxes that they have: %2.</source>
        <translation>Einzelbilder: %1. Kontaktboxen, die sie haben: %2.</translation>
    </message>
    <message>
        <source>No other frame shows the sprite of this one.</source>
        <translation>Kein anderes Einzelbild zeigt den Sprite von diesem.</translation>
    </message>
    <message>
        <source>These lines change nothing in the game:</source>
        <translation>Diese Zeilen ändern im Spiel nichts:</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove them?</source>
        <translation>Entfernen?</translation>
    </message>
    <message>
        <source>Optimize</source>
        <translation>Optimieren</translation>
    </message>
    <message>
        <source>Save as animated GIF</source>
        <translation>Als animiertes GIF speichern</translation>
    </message>
    <message>
        <source>Graphics Interchange Format (*.gif)</source>
        <translation>Graphics Interchange Format (*.gif)</translation>
    </message>
    <message>
        <source>Optimize done!</source>
        <translation>Optimierung fertig!</translation>
    </message>
    <message>
        <source>Code clean, and %1 line(s) were removed in the optimization!</source>
        <translation>Der Code ist aufgeräumt; bei der Optimierung wurden %1 Zeile(n) entfernt!</translation>
    </message>
    <message>
        <source>You can&apos;t save an empty animation as GIF.</source>
        <translation>Eine leere Animation kann nicht als GIF gespeichert werden.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be written.</source>
        <translation>&apos;%1&apos; lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Sprite %1 is now %2.</source>
        <translation>Sprite %1 ist jetzt %2.</translation>
    </message>
    <message>
        <source>Sprite %1 is missing in the source.</source>
        <translation>Sprite %1 fehlt in der Quelle.</translation>
    </message>
    <message>
        <source>Sprite %1 is broken and was left.</source>
        <translation>Sprite %1 ist defekt und wurde ausgelassen.</translation>
    </message>
    <message numerus="yes">
        <source>And %n more sprite(s).</source>
        <translation>
            <numerusform>Und %n weiterer Sprite.</numerusform>
            <numerusform>Und %n weitere Sprites.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n animation(s) were imported!</source>
        <translation>
            <numerusform>%n Animation wurde importiert!</numerusform>
            <numerusform>%n Animationen wurden importiert!</numerusform>
        </translation>
    </message>
    <message>
        <source>No animation imported!</source>
        <translation>Keine Animation importiert!</translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) were added.</source>
        <translation>
            <numerusform>%n Sprite wurde hinzugefügt.</numerusform>
            <numerusform>%n Sprites wurden hinzugefügt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) were there already.</source>
        <translation>
            <numerusform>%n Sprite war schon da.</numerusform>
            <numerusform>%n Sprites waren schon da.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n palette(s) were added.</source>
        <translation>
            <numerusform>%n Palette wurde hinzugefügt.</numerusform>
            <numerusform>%n Paletten wurden hinzugefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import animations from project &apos;%1&apos;</source>
        <translation>Animationen aus Projekt &apos;%1&apos; importieren</translation>
    </message>
    <message>
        <source>%1

Do you want to import the others?</source>
        <translation>%1

Möchten Sie die übrigen importieren?</translation>
    </message>
    <message>
        <source>Contact box of frame #%1</source>
        <translation>Kontaktbox von Einzelbild #%1</translation>
    </message>
    <message>
        <source>total %1, no attack</source>
        <translation>gesamt %1, kein Angriff</translation>
    </message>
    <message>
        <source>%1 with %2 between</source>
        <translation>%1 mit %2 dazwischen</translation>
    </message>
    <message>
        <source>start %1, active %2, recovery %3, total %4; reach %5 px</source>
        <translation>Start %1, aktiv %2, Erholung %3, gesamt %4; Reichweite %5 px</translation>
    </message>
</context>
<context>
    <name>Zorv::AnimationEdits</name>
    <message>
        <source>Offset axis</source>
        <translation>Achse verschieben</translation>
    </message>
    <message>
        <source>Offset Contact boxes</source>
        <translation>Kontaktboxen verschieben</translation>
    </message>
    <message>
        <source>Resize Contact boxes (top-left)</source>
        <translation>Größe der Kontaktboxen ändern (oben links)</translation>
    </message>
    <message>
        <source>Resize Contact boxes (bottom-right)</source>
        <translation>Größe der Kontaktboxen ändern (unten rechts)</translation>
    </message>
    <message>
        <source>Scale Contact boxes</source>
        <translation>Kontaktboxen skalieren</translation>
    </message>
    <message>
        <source>Copy contact boxes of frame #%1</source>
        <translation>Kontaktboxen von Einzelbild #%1 kopieren</translation>
    </message>
    <message>
        <source>Contact boxes of frame #%1 in all its instances</source>
        <translation>Kontaktboxen von Einzelbild #%1 in allen Einzelbildern mit diesem Sprite</translation>
    </message>
    <message>
        <source>Paste contact boxes</source>
        <translation>Kontaktboxen einfügen</translation>
    </message>
    <message>
        <source>Remove selected contact boxes</source>
        <translation>Gewählte Kontaktboxen entfernen</translation>
    </message>
    <message>
        <source>Remove all contact boxes of frame #%1</source>
        <translation>Alle Kontaktboxen von Einzelbild #%1 entfernen</translation>
    </message>
    <message>
        <source>Remove all contact boxes of animation #%1</source>
        <translation>Alle Kontaktboxen von Animation #%1 entfernen</translation>
    </message>
    <message>
        <source>Switch contact box type</source>
        <translation>Art von Kontaktboxen wechseln</translation>
    </message>
    <message>
        <source>Mirror contact boxes</source>
        <translation>Kontaktboxen spiegeln</translation>
    </message>
    <message>
        <source>Move frames</source>
        <translation>Einzelbilder verschieben</translation>
    </message>
    <message>
        <source>Reverse frames</source>
        <translation>Einzelbilder umkehren</translation>
    </message>
    <message>
        <source>Remove frames</source>
        <translation>Einzelbilder entfernen</translation>
    </message>
    <message>
        <source>Insert frames</source>
        <translation>Einzelbilder einfügen</translation>
    </message>
    <message>
        <source>Same offset for all frames of animation #%1</source>
        <translation>Gleicher Versatz für alle Einzelbilder von Animation #%1</translation>
    </message>
    <message>
        <source>Same time for all frames of animation #%1</source>
        <translation>Gleiche Zeit für alle Einzelbilder von Animation #%1</translation>
    </message>
    <message>
        <source>Same flip for all frames of animation #%1</source>
        <translation>Gleiche Spiegelung für alle Einzelbilder von Animation #%1</translation>
    </message>
    <message>
        <source>Same scale for all frames of animation #%1</source>
        <translation>Gleiche Skalierung für alle Einzelbilder von Animation #%1</translation>
    </message>
    <message>
        <source>Change time of frames</source>
        <translation>Zeit von Einzelbildern ändern</translation>
    </message>
    <message>
        <source>Edit code of animation #%1</source>
        <translation>Code von Animation #%1 bearbeiten</translation>
    </message>
</context>
<context>
    <name>Zorv::AnimationTexts</name>
    <message>
        <source>Animation:</source>
        <translation>Animation:</translation>
    </message>
    <message>
        <source>Animation of the onion skin</source>
        <translation>Animation der Zwiebelschalen</translation>
    </message>
    <message>
        <source>Frame:</source>
        <translation>Einzelbild:</translation>
    </message>
    <message>
        <source>Frame of the onion skin</source>
        <translation>Einzelbild der Zwiebelschalen</translation>
    </message>
    <message>
        <source>Before:</source>
        <translation>Davor:</translation>
    </message>
    <message>
        <source>How many frames before the shown one the onion skin has, in orange; with 0 on both sides it has the chosen one</source>
        <translation>So viele Einzelbilder vor dem gezeigten haben Zwiebelschalen, in Orange; mit 0 auf beiden Seiten hat sie das gewählte</translation>
    </message>
    <message>
        <source>After:</source>
        <translation>Danach:</translation>
    </message>
    <message>
        <source>How many frames after the shown one the onion skin has, in blue; with 0 on both sides it has the chosen one</source>
        <translation>So viele Einzelbilder nach dem gezeigten haben Zwiebelschalen, in Blau; mit 0 auf beiden Seiten hat sie das gewählte</translation>
    </message>
    <message>
        <source>Box X:</source>
        <translation>Box X:</translation>
    </message>
    <message>
        <source>Left edge of the selected contact box</source>
        <translation>Linker Rand der gewählten Kontaktbox</translation>
    </message>
    <message>
        <source>Box Y:</source>
        <translation>Box Y:</translation>
    </message>
    <message>
        <source>Upper edge of the selected contact box</source>
        <translation>Oberer Rand der gewählten Kontaktbox</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Width of the selected contact box</source>
        <translation>Breite der gewählten Kontaktbox</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Height of the selected contact box</source>
        <translation>Höhe der gewählten Kontaktbox</translation>
    </message>
    <message>
        <source>Copy contact boxes</source>
        <translation>Kontaktboxen kopieren</translation>
    </message>
    <message>
        <source>Put the selected contact boxes into the clipboard, or all of the frame</source>
        <translation>Die gewählten Kontaktboxen in die Zwischenablage legen, oder alle des Einzelbilds</translation>
    </message>
    <message>
        <source>Paste contact boxes</source>
        <translation>Kontaktboxen einfügen</translation>
    </message>
    <message>
        <source>Add the contact boxes of the clipboard to the selected frames</source>
        <translation>Die Kontaktboxen der Zwischenablage den gewählten Einzelbildern hinzufügen</translation>
    </message>
    <message>
        <source>Mirror contact boxes</source>
        <translation>Kontaktboxen spiegeln</translation>
    </message>
    <message>
        <source>Swap left and right of the selected contact boxes, or of all of the frame</source>
        <translation>Links und rechts der gewählten Kontaktboxen tauschen, oder aller des Einzelbilds</translation>
    </message>
    <message>
        <source>Contact boxes to the selected frames</source>
        <translation>Kontaktboxen in die gewählten Einzelbilder</translation>
    </message>
    <message>
        <source>Give the contact boxes of this frame to those selected on the strip, in place of theirs</source>
        <translation>Die Kontaktboxen dieses Einzelbilds denen geben, die auf dem Streifen gewählt sind, an Stelle ihrer eigenen</translation>
    </message>
    <message>
        <source>Lock contact boxes</source>
        <translation>Kontaktboxen sperren</translation>
    </message>
    <message>
        <source>Leave contact boxes where they are: the mouse takes what lies beneath</source>
        <translation>Kontaktboxen lassen, wo sie sind: die Maus nimmt, was darunter liegt</translation>
    </message>
    <message>
        <source>Play from the shown frame</source>
        <translation>Ab dem gezeigten Einzelbild abspielen</translation>
    </message>
    <message>
        <source>Play the animation from the shown frame on; so does Play with Shift</source>
        <translation>Die Animation ab dem gezeigten Einzelbild abspielen; das tut auch Abspielen mit Umschalt</translation>
    </message>
    <message>
        <source>Half speed</source>
        <translation>Halbes Tempo</translation>
    </message>
    <message>
        <source>Play at half speed</source>
        <translation>Mit halbem Tempo abspielen</translation>
    </message>
    <message>
        <source>Quarter speed</source>
        <translation>Viertel des Tempos</translation>
    </message>
    <message>
        <source>Play at a quarter of the speed</source>
        <translation>Mit einem Viertel des Tempos abspielen</translation>
    </message>
    <message>
        <source>Again from the start</source>
        <translation>Wieder von vorn</translation>
    </message>
    <message>
        <source>An animation that ends is played again from the start</source>
        <translation>Eine Animation, die endet, beginnt wieder von vorn</translation>
    </message>
    <message>
        <source>Frame data:</source>
        <translation>Bilddaten:</translation>
    </message>
    <message>
        <source>Ticks in front of, with, and behind attack boxes, and how far these reach in front of the axis</source>
        <translation>Ticks vor, mit und nach Angriffsboxen, und wie weit diese vor die Achse reichen</translation>
    </message>
    <message>
        <source>Reverse frames</source>
        <translation>Einzelbilder umkehren</translation>
    </message>
    <message>
        <source>Turn the order of the selected frames around; of all frames if only one is selected</source>
        <translation>Die Reihenfolge der ausgewählten Einzelbilder umkehren; die aller, wenn nur eines ausgewählt ist</translation>
    </message>
</context>
<context>
    <name>Zorv::Animations</name>
    <message>
        <source>Auto organize animations</source>
        <translation>Animationen automatisch ordnen</translation>
    </message>
</context>
<context>
    <name>Zorv::BasePenTool</name>
    <message>
        <source>Width of the brush</source>
        <translation>Breite des Pinsels</translation>
    </message>
    <message>
        <source>Width of the brush, in pixels (+ and -)</source>
        <translation>Breite des Pinsels in Pixeln (+ und -)</translation>
    </message>
</context>
<context>
    <name>Zorv::CodeCompletion</name>
    <message>
        <source>Words to complete</source>
        <translation>Wörter zur Ergänzung</translation>
    </message>
</context>
<context>
    <name>Zorv::CodeDocument</name>
    <message>
        <source>It is too large for a text. Choose a file of less than %1 MB</source>
        <translation>Sie ist zu groß für einen Text. Bitte eine Datei unter %1 MB wählen</translation>
    </message>
    <message>
        <source>Cannot open %1.%2</source>
        <translation>%1 kann nicht geöffnet werden.%2</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Cannot write %1.%2</source>
        <translation>%1 kann nicht geschrieben werden.%2</translation>
    </message>
</context>
<context>
    <name>Zorv::CodeEditorExtraArea</name>
    <message>
        <source>Line numbers, marks and folds</source>
        <translation>Zeilennummern, Markierungen und Klappmarken</translation>
    </message>
</context>
<context>
    <name>Zorv::CodeFileEditor</name>
    <message>
        <source>No text found!</source>
        <translation>Der Text wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Line: %1, Column: %2, Line count: %3</source>
        <translation>Zeile: %1, Spalte: %2, Zeilen: %3</translation>
    </message>
    <message>
        <source>Syntax error count: %1</source>
        <translation>Fehler: %1</translation>
    </message>
</context>
<context>
    <name>Zorv::CodeItemModel</name>
    <message>
        <source>Frame</source>
        <translation>Einzelbild</translation>
    </message>
</context>
<context>
    <name>Zorv::CodeWorkspace</name>
    <message>
        <source>Encoding: %1</source>
        <translation>Kodierung: %1</translation>
    </message>
    <message>
        <source>Open texts</source>
        <translation>Offene Texte</translation>
    </message>
    <message>
        <source>Problems of this text</source>
        <translation>Probleme dieses Textes</translation>
    </message>
    <message>
        <source>Text of %1</source>
        <translation>Text von %1</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Words to complete</source>
        <translation>Wörter zum Vervollständigen</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Do you want to reload the file using the specified encoding?</source>
        <translation>Soll die Datei mit der angegebenen Kodierung neu geladen werden?</translation>
    </message>
    <message>
        <source>Invalid line! Do you want go to the last line?</source>
        <translation>Ungültige Zeile! Möchten Sie zur letzten Zeile gehen?</translation>
    </message>
</context>
<context>
    <name>Zorv::ColorPalette</name>
    <message>
        <source>Foreground color</source>
        <translation>Vordergrundfarbe</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
</context>
<context>
    <name>Zorv::CompleterFile</name>
    <message>
        <source>The words to complete cannot be read from %1: %2</source>
        <translation>Die Wörter zur Ergänzung lassen sich nicht aus %1 lesen: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>%1 is too long for a file of words to complete: more than %2 MiB.</source>
        <translation>%1 ist zu lang für eine Datei mit Wörtern zur Ergänzung: mehr als %2 MiB.</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4 The words to complete stay as they were.</source>
        <translation>%1, Zeile %2, Spalte %3: %4 Die Wörter zur Ergänzung bleiben, wie sie waren.</translation>
    </message>
    <message>
        <source>A document type is not allowed here.</source>
        <translation>Ein Dokumenttyp ist hier nicht erlaubt.</translation>
    </message>
    <message>
        <source>Expected the element &apos;completer&apos;.</source>
        <translation>Erwartet: das Element &apos;completer&apos;.</translation>
    </message>
    <message>
        <source>Expected version=&quot;1&quot;.</source>
        <translation>Erwartet: version=&quot;1&quot;.</translation>
    </message>
    <message>
        <source>Expected an attribute &apos;trigger&apos; with a text.</source>
        <translation>Erwartet: ein Attribut &apos;trigger&apos; mit einem Text.</translation>
    </message>
    <message>
        <source>Expected an attribute &apos;text&apos; with a word.</source>
        <translation>Erwartet: ein Attribut &apos;text&apos; mit einem Wort.</translation>
    </message>
    <message>
        <source>These are more than %1 words.</source>
        <translation>Das sind mehr als %1 Wörter.</translation>
    </message>
</context>
<context>
    <name>Zorv::Dialogs</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 gibt es schon.
Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Datei ersetzen?</translation>
    </message>
</context>
<context>
    <name>Zorv::Failures</name>
    <message>
        <source>... and %1 more.</source>
        <translation>... und %1 weitere.</translation>
    </message>
</context>
<context>
    <name>Zorv::FileChange</name>
    <message>
        <source>Another program is changing files in %1</source>
        <translation>Ein anderes Programm ändert gerade Dateien in %1</translation>
    </message>
    <message>
        <source>%1, for longer than %2 seconds. Nothing is written. Wait until it has ended, then try again.</source>
        <translation>%1, und das seit mehr als %2 Sekunden. Nichts wurde geschrieben. Bitte warten, bis es fertig ist, und es dann erneut versuchen.</translation>
    </message>
    <message>
        <source>Another program has changed the file meanwhile</source>
        <translation>Ein anderes Programm hat die Datei inzwischen geändert</translation>
    </message>
</context>
<context>
    <name>Zorv::FileEditor</name>
    <message>
        <source>External file!</source>
        <translation>Externe Datei!</translation>
    </message>
    <message>
        <source>Discard changes?</source>
        <translation>Änderungen verwerfen?</translation>
    </message>
    <message>
        <source>Do you want to discard the changes made in %1?</source>
        <translation>Sollen die Änderungen in %1 verworfen werden?</translation>
    </message>
    <message>
        <source>No file reference!</source>
        <translation>Keine Dateireferenz!</translation>
    </message>
    <message>
        <source>Without a real file reference, some functions may not work properly until you save it.</source>
        <translation>Ohne echte Dateireferenz arbeiten manche Funktionen erst nach dem Speichern richtig.</translation>
    </message>
    <message>
        <source>Open %1...</source>
        <translation>%1 öffnen ...</translation>
    </message>
    <message>
        <source>This file isn&apos;t a child of the project directory, so will be ignored on &apos;Run in engine&apos;, &apos;Backup&apos; and &apos;Save as&apos; functions. Do you want to load it as copy?
Note: As copy, if you save it the previous file will be overwritten!</source>
        <translation>Diese Datei liegt nicht im Projektordner und wird daher bei &apos;In Engine starten&apos;, &apos;Sicherung&apos; und &apos;Speichern unter&apos; übergangen. Soll sie als Kopie geladen werden?
Hinweis: Als Kopie wird beim Speichern die vorige Datei überschrieben!</translation>
    </message>
    <message>
        <source>Save %1 as...</source>
        <translation>%1 speichern unter ...</translation>
    </message>
    <message>
        <source>This file isn&apos;t a child of the project directory, so will be ignored on &apos;Run in engine&apos;, &apos;Backup&apos; and &apos;Save as&apos; functions. Do you want to save it as copy?
Note: As copy, we keep the reference to the previous file!</source>
        <translation>Diese Datei liegt nicht im Projektordner und wird daher bei &apos;In Engine starten&apos;, &apos;Sicherung&apos; und &apos;Speichern unter&apos; übergangen. Soll sie als Kopie gespeichert werden?
Hinweis: Als Kopie bleibt der Verweis auf die vorige Datei erhalten!</translation>
    </message>
</context>
<context>
    <name>Zorv::FileSystemArchive</name>
    <message>
        <source>Cannot open %1: %2. Check that the file is there and may be read.</source>
        <translation>%1 kann nicht geöffnet werden: %2. Bitte prüfen, ob die Datei da ist und gelesen werden darf.</translation>
    </message>
    <message>
        <source>The file does not exist</source>
        <translation>Die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>Cannot open %1: It is a folder. Name a file in it.</source>
        <translation>%1 kann nicht geöffnet werden: Es ist ein Ordner. Bitte eine Datei darin nennen.</translation>
    </message>
    <message>
        <source>Cannot open %1: It is not a plain file. Name a file on a disk.</source>
        <translation>%1 kann nicht geöffnet werden: Es ist keine gewöhnliche Datei. Bitte eine Datei auf einem Datenträger nennen.</translation>
    </message>
</context>
<context>
    <name>Zorv::FileWatcherManager</name>
    <message>
        <source>File modified</source>
        <translation>Datei geändert</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; has been modified. Do you want to reload all other instances of this file now?</source>
        <translation>Die Datei &apos;%1&apos; wurde geändert. Sollen alle anderen Exemplare dieser Datei jetzt neu geladen werden?</translation>
    </message>
</context>
<context>
    <name>Zorv::Files</name>
    <message>
        <source>Cannot read %1: %2. Check that the file is there and may be read.</source>
        <translation>%1 kann nicht gelesen werden: %2. Bitte prüfen, ob die Datei da ist und gelesen werden darf.</translation>
    </message>
    <message>
        <source>It does not open</source>
        <translation>Sie lässt sich nicht öffnen</translation>
    </message>
</context>
<context>
    <name>Zorv::GraphicsRenderer</name>
    <message>
        <source>Change contact box rectangle</source>
        <translation>Rechteck von Kontaktboxen ändern</translation>
    </message>
    <message>
        <source>Remove selected contact boxes</source>
        <translation>Gewählte Kontaktboxen entfernen</translation>
    </message>
</context>
<context>
    <name>Zorv::GraphicsWorkspace</name>
    <message>
        <source>Time line</source>
        <translation>Zeitleiste</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Bühne</translation>
    </message>
</context>
<context>
    <name>Zorv::ImageCanvas</name>
    <message>
        <source>The image cannot have %1 by %2 pixels: each side must have from 1 to %3.</source>
        <translation>Das Bild kann nicht %1 mal %2 Pixel haben: Jede Seite muss 1 bis %3 haben.</translation>
    </message>
    <message>
        <source>There is not enough memory for an image of %1 by %2 pixels.</source>
        <translation>Der Speicher reicht nicht für ein Bild von %1 mal %2 Pixeln.</translation>
    </message>
    <message>
        <source>There is nothing to crop to: no pixel shows.</source>
        <translation>Es gibt nichts, worauf zugeschnitten werden kann: Kein Pixel ist sichtbar.</translation>
    </message>
    <message>
        <source>There is not enough memory for this.</source>
        <translation>Der Speicher reicht dafür nicht.</translation>
    </message>
</context>
<context>
    <name>Zorv::ImageClipboard</name>
    <message>
        <source>There is no picture on the clipboard. Copy one first.</source>
        <translation>In der Zwischenablage ist kein Bild. Kopieren Sie zuerst eines.</translation>
    </message>
    <message>
        <source>The picture on the clipboard cannot be read. Copy it again, or save it as a PNG file and open that.</source>
        <translation>Das Bild in der Zwischenablage ist nicht lesbar. Kopieren Sie es noch einmal, oder speichern Sie es als PNG-Datei und öffnen Sie diese.</translation>
    </message>
    <message>
        <source>The picture on the clipboard has %1 by %2 pixels, which is too much. Copy a smaller part of it.</source>
        <translation>Das Bild in der Zwischenablage hat %1 mal %2 Pixel, das ist zu viel. Kopieren Sie einen kleineren Teil davon.</translation>
    </message>
    <message>
        <source>There is no layer to copy from. Choose one first.</source>
        <translation>Es gibt keine Ebene, aus der kopiert werden kann. Wählen Sie zuerst eine.</translation>
    </message>
    <message>
        <source>Nothing is selected. Select some pixels first.</source>
        <translation>Nichts ist ausgewählt. Wählen Sie zuerst Pixel aus.</translation>
    </message>
    <message>
        <source>There is not enough memory to copy. Select fewer pixels.</source>
        <translation>Der Speicher reicht zum Kopieren nicht. Wählen Sie weniger Pixel aus.</translation>
    </message>
    <message>
        <source>There is no visible layer to paste onto. Choose or show one first.</source>
        <translation>Es gibt keine sichtbare Ebene, auf die eingefügt werden kann. Wählen oder zeigen Sie zuerst eine.</translation>
    </message>
    <message>
        <source>The selected pixels cannot be written as a PNG file. Select fewer of them.</source>
        <translation>Die ausgewählten Pixel lassen sich nicht als PNG-Datei schreiben. Wählen Sie weniger aus.</translation>
    </message>
    <message>
        <source>The active layer is hidden. Show it before you cut from it.</source>
        <translation>Die aktive Ebene ist ausgeblendet. Blenden Sie sie ein, bevor Sie daraus ausschneiden.</translation>
    </message>
    <message>
        <source>There is no image to paste into. Open one first.</source>
        <translation>Es gibt kein Bild, in das eingefügt werden kann. Öffnen Sie zuerst eines.</translation>
    </message>
</context>
<context>
    <name>Zorv::ImageTransfer</name>
    <message>
        <source>Cannot open &apos;%1&apos;: %2. Check that the file is there and may be read.</source>
        <translation>&apos;%1&apos; kann nicht geöffnet werden: %2. Bitte prüfen, ob die Datei da ist und gelesen werden darf.</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: it is no whole image of the format of its suffix. Expected .png, .pcx, .bmp or .gif.</source>
        <translation>&apos;%1&apos; kann nicht gelesen werden: Es ist kein ganzes Bild im Format seiner Endung. Erwartet wird .png, .pcx, .bmp oder .gif.</translation>
    </message>
</context>
<context>
    <name>Zorv::ImportReport</name>
    <message numerus="yes">
        <source>%n of them took the place of another one.</source>
        <translation>
            <numerusform>%n davon steht an der Stelle eines vorhandenen Eintrags.</numerusform>
            <numerusform>%n davon stehen an der Stelle vorhandener Einträge.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were skipped: their names are there already.</source>
        <translation>
            <numerusform>%n wurde übersprungen: Der Name ist schon vergeben.</numerusform>
            <numerusform>%n wurden übersprungen: Die Namen sind schon vergeben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n could not be imported.</source>
        <translation>
            <numerusform>%n konnte nicht importiert werden.</numerusform>
            <numerusform>%n konnten nicht importiert werden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorv::OrganizerEditor</name>
    <message>
        <source>Move rows</source>
        <translation>Zeilen verschieben</translation>
    </message>
</context>
<context>
    <name>Zorv::OrganizerRows</name>
    <message>
        <source>Move rows</source>
        <translation>Zeilen verschieben</translation>
    </message>
</context>
<context>
    <name>Zorv::PaletteEditor</name>
    <message>
        <source>Move color</source>
        <translation>Farbe verschieben</translation>
    </message>
    <message>
        <source>What stays as it is when a color moves to another slot?
The answer is kept in the settings.</source>
        <translation>Was bleibt, wie es ist, wenn eine Farbe an einen anderen Platz kommt?
Die Antwort bleibt in den Einstellungen.</translation>
    </message>
    <message>
        <source>The pictures, in all palettes: pixels go with their color</source>
        <translation>Die Bilder, in allen Paletten: Pixel gehen mit ihrer Farbe</translation>
    </message>
    <message>
        <source>The pictures, in this palette alone</source>
        <translation>Die Bilder, nur in dieser Palette</translation>
    </message>
    <message>
        <source>The slots: pictures show the new order</source>
        <translation>Die Plätze: Bilder zeigen die neue Ordnung</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) use these palettes, and are shown in shades of gray without them. Do you want to remove all palettes?</source>
        <translation>
            <numerusform>%n Sprite benutzt diese Paletten und wird ohne sie in Grautönen gezeigt. Alle Paletten entfernen?</numerusform>
            <numerusform>%n Sprites benutzen diese Paletten und werden ohne sie in Grautönen gezeigt. Alle Paletten entfernen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) use a palette that repeats another one, and take that one. Do you want to remove all duplicates?</source>
        <translation>
            <numerusform>%n Sprite benutzt eine Palette, die es zweimal gibt, und nimmt dann die erste. Alle mehrfachen entfernen?</numerusform>
            <numerusform>%n Sprites benutzen Paletten, die es mehrmals gibt, und nehmen dann die erste. Alle mehrfachen entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Add palette</source>
        <translation>Palette hinzufügen</translation>
    </message>
    <message>
        <source>Do you want to load the palettes from files?</source>
        <translation>Die Paletten aus Dateien laden?</translation>
    </message>
    <message>
        <source>The colors of the new palette:</source>
        <translation>Die Farben der neuen Palette:</translation>
    </message>
    <message>
        <source>Those of palette %1</source>
        <translation>Die von Palette %1</translation>
    </message>
    <message>
        <source>None yet: all are transparent</source>
        <translation>Noch keine: alle sind durchsichtig</translation>
    </message>
    <message>
        <source>Add palettes</source>
        <translation>Paletten hinzufügen</translation>
    </message>
    <message>
        <source>The palette of &apos;%1&apos; could not be added.</source>
        <translation>Die Palette von &apos;%1&apos; ließ sich nicht hinzufügen.</translation>
    </message>
    <message>
        <source>Delete palette</source>
        <translation>Palette löschen</translation>
    </message>
    <message>
        <source>Do you really want to delete the palette?</source>
        <translation>Die Palette wirklich löschen?</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of these names are in the folder already. Replace them?</source>
        <translation>
            <numerusform>%n Datei mit einem dieser Namen ist schon im Ordner. Ersetzen?</numerusform>
            <numerusform>%n Dateien mit diesen Namen sind schon im Ordner. Ersetzen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving palettes...</source>
        <translation>Paletten werden gespeichert ...</translation>
    </message>
    <message>
        <source>The canvas has changes that are not saved, of a sprite of another project. Save or discard them first.</source>
        <translation>Auf der Zeichenfläche sind ungespeicherte Änderungen an einem Sprite eines anderen Projekts. Speichern oder verwerfen Sie sie zuerst.</translation>
    </message>
</context>
<context>
    <name>Zorv::PaletteFile</name>
    <message>
        <source>Cannot read a palette from &apos;%1&apos;. Expected .act, .pal, .aco, .ase, .txt, or an indexed image.</source>
        <translation>Aus &apos;%1&apos; lässt sich keine Palette lesen. Erwartet: .act, .pal, .aco, .ase, .txt oder ein Bild mit Palette.</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: palettes are written as .act.</source>
        <translation>&apos;%1&apos; lässt sich nicht schreiben: Paletten werden als .act geschrieben.</translation>
    </message>
</context>
<context>
    <name>Zorv::PalettePreviews</name>
    <message>
        <source>The image has no palette: its colours are its own.</source>
        <translation>Das Bild hat keine Palette: Seine Farben sind seine eigenen.</translation>
    </message>
    <message>
        <source>There is no palette to show.</source>
        <translation>Es gibt keine Palette zu zeigen.</translation>
    </message>
    <message>
        <source>Palettes side by side</source>
        <translation>Paletten nebeneinander</translation>
    </message>
</context>
<context>
    <name>Zorv::PaletteRemapWidget</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Colours to replace</source>
        <translation>Zu ersetzende Farben</translation>
    </message>
    <message>
        <source>Clear the row</source>
        <translation>Zeile leeren</translation>
    </message>
    <message>
        <source>Clear all rows</source>
        <translation>Alle Zeilen leeren</translation>
    </message>
</context>
<context>
    <name>Zorv::PaletteWidget</name>
    <message>
        <source>%1, %2, %3, %4
Index %5, %6</source>
        <translation>%1, %2, %3, %4
Index %5, %6</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
</context>
<context>
    <name>Zorv::ParentProject</name>
    <message>
        <source>Backup in progress...</source>
        <translation>Sicherung läuft ...</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Restoring backup...</source>
        <translation>Sicherung wird wiederhergestellt ...</translation>
    </message>
    <message>
        <source>Oops, you can run only one instance of yhe engine at the same time.</source>
        <translation>Es kann nur eine Instanz der Engine gleichzeitig laufen.</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>Executable not found!</source>
        <translation>Das Programm wurde nicht gefunden!</translation>
    </message>
    <message>
        <source>Oops, you need to add an engine first. Do it in Tools / Options.</source>
        <translation>Es ist noch keine Engine eingerichtet. Dies geht in Extras / Optionen.</translation>
    </message>
    <message>
        <source>Oops, wrong parameters on the engine configuration. Check it in Tools / Options.</source>
        <translation>Die Parameter der Engine sind falsch. Bitte in Extras / Optionen prüfen.</translation>
    </message>
    <message>
        <source>Error %1!</source>
        <translation>Fehler %1!</translation>
    </message>
    <message>
        <source>Can&apos;t start the process &apos;%1&apos;!</source>
        <translation>Der Prozess &apos;%1&apos; kann nicht gestartet werden!</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>Warnung!</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>Speichern ...</translation>
    </message>
</context>
<context>
    <name>Zorv::SafeFile</name>
    <message>
        <source>The old file is unchanged.</source>
        <translation>Die alte Datei ist unverändert.</translation>
    </message>
    <message>
        <source>Save under another name.</source>
        <translation>Bitte unter einem anderen Namen speichern.</translation>
    </message>
    <message>
        <source>There is no name</source>
        <translation>Es gibt keinen Namen</translation>
    </message>
    <message>
        <source>It is a folder</source>
        <translation>Es ist ein Ordner</translation>
    </message>
    <message>
        <source>It is not a plain file</source>
        <translation>Es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>The file is write-protected</source>
        <translation>Die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Allow writing to it, or save under another name.</source>
        <translation>Bitte das Schreiben erlauben oder unter einem anderen Namen speichern.</translation>
    </message>
    <message>
        <source>The file exists</source>
        <translation>Die Datei gibt es schon</translation>
    </message>
    <message>
        <source>The file does not exist</source>
        <translation>Die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>Check that the folder is there and may be written to, or save in another place.</source>
        <translation>Bitte prüfen, ob der Ordner da ist und in ihn geschrieben werden darf, oder an anderer Stelle speichern.</translation>
    </message>
    <message>
        <source>The old file is unchanged. Free some space or choose another place, then save again.</source>
        <translation>Die alte Datei ist unverändert. Bitte Platz schaffen oder eine andere Stelle wählen und erneut speichern.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2. %3</source>
        <translation>%1 kann nicht geschrieben werden: %2. %3</translation>
    </message>
    <message>
        <source>Free some space or choose another place, then save again.</source>
        <translation>Bitte Platz schaffen oder einen anderen Ort wählen und dann erneut speichern.</translation>
    </message>
    <message>
        <source>Nothing is written. Try again in a moment.</source>
        <translation>Nichts wurde geschrieben. Bitte gleich noch einmal versuchen.</translation>
    </message>
</context>
<context>
    <name>Zorv::SnippetFile</name>
    <message>
        <source>The snippet has no element &quot;code&quot;. Add one with the text to insert.</source>
        <translation>Der Baustein hat kein Element „code“. Fügen Sie eines mit dem Text hinzu, der eingefügt werden soll.</translation>
    </message>
    <message>
        <source>A snippet has at most %1 fields. Remove some.</source>
        <translation>Ein Baustein hat höchstens %1 Felder. Entfernen Sie einige.</translation>
    </message>
    <message>
        <source>A field has no name. Write one, such as name=&quot;speed&quot;.</source>
        <translation>Ein Feld hat keinen Namen. Schreiben Sie einen, etwa name=&quot;speed&quot;.</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; has the unknown type &quot;%2&quot;. Write string, int, float or items.</source>
        <translation>Das Feld &apos;%1&apos; hat den unbekannten Typ &apos;%2&apos;. Schreiben Sie string, int, float oder items.</translation>
    </message>
    <message>
        <source>%1
Line %2, column %3.</source>
        <translation>%1
Zeile %2, Spalte %3.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Es gibt keine solche Datei.</translation>
    </message>
    <message>
        <source>It is too large for a snippet: %1 bytes are the most.</source>
        <translation>Sie ist zu groß für einen Baustein: Höchstens %1 Byte sind möglich.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cannot save %1: %2</source>
        <translation>%1 kann nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>A list has at most %1 items. Remove some.</source>
        <translation>Eine Liste hat höchstens %1 Einträge. Entfernen Sie einige.</translation>
    </message>
</context>
<context>
    <name>Zorv::SnippetManager</name>
    <message>
        <source>Code snippet</source>
        <translation>Codebaustein</translation>
    </message>
    <message>
        <source>With the value of &quot;%1&quot; the text grows too large. Shorten the value, or use the field less often.</source>
        <translation>Mit dem Wert von &apos;%1&apos; wird der Text zu groß. Kürzen Sie den Wert, oder verwenden Sie das Feld seltener.</translation>
    </message>
    <message>
        <source>Cannot read the snippet &quot;%1&quot;: %2</source>
        <translation>Der Baustein &apos;%1&apos; kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used.
%2</source>
        <translation>&apos;%1&apos; kann nicht verwendet werden.
%2</translation>
    </message>
</context>
<context>
    <name>Zorv::SoundConversion</name>
    <message>
        <source>The sound has no frames, no sample rate or no channels.</source>
        <translation>Der Klang hat keine Frames, keine Abtastrate oder keine Kanäle.</translation>
    </message>
    <message>
        <source>Only samples of 8, 16, 24 or 32 bits can be converted.</source>
        <translation>Nur Abtastwerte mit 8, 16, 24 oder 32 Bit können umgewandelt werden.</translation>
    </message>
    <message>
        <source>A sample rate and channels to convert to are needed.</source>
        <translation>Zum Umwandeln werden eine Abtastrate und Kanäle gebraucht.</translation>
    </message>
    <message>
        <source>The sample rates are too far apart: one is more than 256 times the other.</source>
        <translation>Die Abtastraten liegen zu weit auseinander: eine ist mehr als das 256-Fache der anderen.</translation>
    </message>
    <message>
        <source>The result would have more than two gigabytes.</source>
        <translation>Das Ergebnis hätte mehr als zwei Gigabyte.</translation>
    </message>
    <message>
        <source>The sound has too many channels for another sample rate.</source>
        <translation>Der Klang hat zu viele Kanäle für eine andere Abtastrate.</translation>
    </message>
</context>
<context>
    <name>Zorv::SoundEditor</name>
    <message>
        <source>No sound found!</source>
        <translation>Kein Klang gefunden!</translation>
    </message>
    <message>
        <source>Replace identifiers</source>
        <translation>Kennungen ersetzen</translation>
    </message>
    <message>
        <source>WAVEform audio format (*.wav)</source>
        <translation>WAVE-Klangformat (*.wav)</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of these names are there already. Replace them?</source>
        <translation>
            <numerusform>%n Datei mit diesem Namen gibt es schon. Ersetzen?</numerusform>
            <numerusform>%n Dateien mit diesen Namen gibt es schon. Ersetzen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Do you really want to delete the sprite?</source>
        <translation>Den Klang wirklich löschen?</translation>
    </message>
    <message>
        <source>Import sounds from project &apos;%1&apos;</source>
        <translation>Klänge aus Projekt &apos;%1&apos; importieren</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>Klang</translation>
    </message>
    <message numerus="yes">
        <source>%n sound(s) were imported!</source>
        <translation>
            <numerusform>%n Klang wurde importiert!</numerusform>
            <numerusform>%n Klänge wurden importiert!</numerusform>
        </translation>
    </message>
    <message>
        <source>No sound imported!</source>
        <translation>Kein Klang importiert!</translation>
    </message>
    <message numerus="yes">
        <source>%n sound(s) were replaced!</source>
        <translation>
            <numerusform>%n Klang wurde ersetzt!</numerusform>
            <numerusform>%n Klänge wurden ersetzt!</numerusform>
        </translation>
    </message>
    <message>
        <source>Channels: %1 (%2)
Sample rate: %3 Hz
Bits per sample: %4 bits
Duration: %5 seconds
Tick count: %6 at 60Hz</source>
        <translation>Kanäle: %1 (%2)
Abtastrate: %3 Hz
Bit je Abtastwert: %4 Bit
Dauer: %5 Sekunden
Ticks: %6 bei 60 Hz</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message>
        <source>Channels: ---
Sample rate: ---
Bits per sample: ---
Duration: ---
Tick count: ---</source>
        <translation>Kanäle: ---
Abtastrate: ---
Bit je Abtastwert: ---
Dauer: ---
Ticks: ---</translation>
    </message>
    <message numerus="yes">
        <source>%n sound(s) stay as they were:</source>
        <translation>
            <numerusform>%n Klang bleibt, wie er war:</numerusform>
            <numerusform>%n Klänge bleiben, wie sie waren:</numerusform>
        </translation>
    </message>
    <message>
        <source>Resampling...</source>
        <translation>Abtastrate wird geändert ...</translation>
    </message>
    <message>
        <source>%1: the samples of this sound are broken.</source>
        <translation>%1: die Samples dieses Sounds sind beschädigt.</translation>
    </message>
    <message>
        <source>Sound %1 would be called &apos;%2&apos;, which is no identifier that a sound can have. Nothing is replaced. Write one like those in the list.</source>
        <translation>Klang %1 hieße dann &apos;%2&apos;, doch das kann keine Kennung eines Klangs sein. Nichts wird ersetzt. Bitte eine wie die in der Liste schreiben.</translation>
    </message>
    <message>
        <source>%1: the sound is not there any more.</source>
        <translation>%1: Den Klang gibt es nicht mehr.</translation>
    </message>
</context>
<context>
    <name>Zorv::SoundOutput</name>
    <message>
        <source>Nothing is heard: the sound device &apos;%1&apos; takes no samples of 8, 16, 24 or 32 bits, nor floats. Choose another one in the system&apos;s settings.</source>
        <translation>Es ist nichts zu hören: Das Tongerät &apos;%1&apos; nimmt weder Samples von 8, 16, 24 oder 32 Bit noch Gleitkommazahlen. Bitte in den Einstellungen des Systems ein anderes wählen.</translation>
    </message>
</context>
<context>
    <name>Zorv::SoundPlayer</name>
    <message>
        <source>This sound has no form that can be played.</source>
        <translation>Dieser Klang hat keine Form, die abgespielt werden kann.</translation>
    </message>
    <message>
        <source>Nothing is heard: there is no sound device. Connect one, and play again.</source>
        <translation>Es ist nichts zu hören: Es gibt kein Tongerät. Bitte eines anschließen und wieder abspielen.</translation>
    </message>
    <message>
        <source>Nothing is heard: the sound device could not be opened, or has gone. Connect it, and play again.</source>
        <translation>Es ist nichts zu hören: Das Tongerät ließ sich nicht öffnen oder ist nicht mehr da. Bitte anschließen und wieder abspielen.</translation>
    </message>
    <message>
        <source>The sound is being converted to a form that the sound device takes.</source>
        <translation>Der Klang wird gerade in eine Form umgerechnet, die das Tongerät nimmt.</translation>
    </message>
</context>
<context>
    <name>Zorv::SoundTexts</name>
    <message>
        <source>Sound:</source>
        <translation>Klang:</translation>
    </message>
    <message>
        <source>The sound that is shown and played</source>
        <translation>Der Klang, der gezeigt und abgespielt wird</translation>
    </message>
    <message>
        <source>Trim to selection</source>
        <translation>Auf Auswahl zuschneiden</translation>
    </message>
    <message>
        <source>Keep only the selected part of the sound</source>
        <translation>Nur den ausgewählten Teil des Klangs behalten</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Let the selected part, or all of the sound, begin in silence</source>
        <translation>Den ausgewählten Teil oder den ganzen Klang in Stille beginnen lassen</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Let the selected part, or all of the sound, end in silence</source>
        <translation>Den ausgewählten Teil oder den ganzen Klang in Stille enden lassen</translation>
    </message>
    <message>
        <source>Normalize</source>
        <translation>Normalisieren</translation>
    </message>
    <message>
        <source>Make the selected part, or all of the sound, as loud as it can be</source>
        <translation>Den ausgewählten Teil oder den ganzen Klang so laut wie möglich machen</translation>
    </message>
    <message>
        <source>Silence</source>
        <translation>Stille</translation>
    </message>
    <message>
        <source>Silence the selected part of the sound</source>
        <translation>Den ausgewählten Teil des Klangs verstummen lassen</translation>
    </message>
</context>
<context>
    <name>Zorv::SoundWorkspace</name>
    <message>
        <source>Waveform</source>
        <translation>Wellenform</translation>
    </message>
</context>
<context>
    <name>Zorv::SpriteAdding</name>
    <message>
        <source>Add sprites</source>
        <translation>Sprites hinzufügen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; could not be taken up: the picture of %2 by %3 is too large for a sprite, or memory is short.</source>
        <translation>&apos;%1&apos; konnte nicht übernommen werden: Das Bild von %2 mal %3 ist zu groß für ein Sprite, oder der Speicher ist knapp.</translation>
    </message>
</context>
<context>
    <name>Zorv::SpriteEditor</name>
    <message>
        <source>Not possible</source>
        <translation>Nicht möglich</translation>
    </message>
    <message>
        <source>No sprite found!</source>
        <translation>Kein Sprite gefunden!</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>A double click on a sprite in the list of sprites shows it here.</source>
        <translation>Ein Doppelklick auf ein Sprite in der Liste der Sprites zeigt es hier.</translation>
    </message>
    <message>
        <source>The canvas cannot be shown: OpenGL does not work on this display. A driver for the graphics card, or Mesa&apos;s software OpenGL, brings it back.</source>
        <translation>Die Zeichenfläche kann nicht gezeigt werden: OpenGL geht auf dieser Anzeige nicht. Ein Treiber für die Grafikkarte oder Mesas OpenGL in Software bringt sie zurück.</translation>
    </message>
    <message>
        <source>%1, alpha %2</source>
        <translation>%1, Alpha %2</translation>
    </message>
    <message>
        <source>color %1, %2</source>
        <translation>Farbe %1, %2</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Ebene %1</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 Kopie</translation>
    </message>
    <message>
        <source>Discard changes?</source>
        <translation>Änderungen verwerfen?</translation>
    </message>
    <message>
        <source>Do you want to discard the changes made in the current sprite?</source>
        <translation>Sollen die Änderungen am aktuellen Sprite verworfen werden?</translation>
    </message>
    <message>
        <source>Save image changes</source>
        <translation>Bildänderungen speichern</translation>
    </message>
    <message>
        <source>Hidden layers stay on the canvas and are not saved into the sprite.</source>
        <translation>Verborgene Ebenen bleiben auf der Zeichenfläche und werden nicht ins Sprite gespeichert.</translation>
    </message>
    <message>
        <source>The sprite on the canvas is not in the file any more. Its picture can be copied.</source>
        <translation>Das Sprite auf der Zeichenfläche ist nicht mehr in der Datei. Sein Bild kann kopiert werden.</translation>
    </message>
    <message>
        <source>Do you really want to delete the sprite?</source>
        <translation>Soll das Sprite wirklich gelöscht werden?</translation>
    </message>
    <message>
        <source>The changes on the canvas that are not saved go with it.</source>
        <translation>Die nicht gespeicherten Änderungen auf der Zeichenfläche gehen mit verloren.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>The sprite on the canvas is not in the file any more, and its picture cannot be saved. Copy the picture, or discard it.</source>
        <translation>Das Sprite auf der Zeichenfläche ist nicht mehr in der Datei, sein Bild kann nicht gespeichert werden. Kopieren oder verwerfen Sie das Bild.</translation>
    </message>
    <message>
        <source>Add sprites</source>
        <translation>Sprites hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to crop %n image(s)?</source>
        <translation>
            <numerusform>Soll %n Bild zugeschnitten werden?</numerusform>
            <numerusform>Sollen %n Bilder zugeschnitten werden?</numerusform>
        </translation>
    </message>
    <message>
        <source>Change image</source>
        <translation>Bild ändern</translation>
    </message>
    <message>
        <source>Do you want to crop the image?</source>
        <translation>Soll das Bild zugeschnitten werden?</translation>
    </message>
    <message>
        <source>The picture could not be saved into the sprite. It is too large for a sprite, or memory is short.</source>
        <translation>Das Bild konnte nicht ins Sprite gespeichert werden. Es ist zu groß für ein Sprite, oder der Speicher ist knapp.</translation>
    </message>
    <message>
        <source>Renumber sprite</source>
        <translation>Sprite umnummerieren</translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) were imported!</source>
        <translation>
            <numerusform>%n Sprite wurde importiert!</numerusform>
            <numerusform>%n Sprites wurden importiert!</numerusform>
        </translation>
    </message>
    <message>
        <source>No sprite imported!</source>
        <translation>Kein Sprite importiert!</translation>
    </message>
    <message numerus="yes">
        <source>%n palette(s) were added.</source>
        <translation>
            <numerusform>%n Palette wurde hinzugefügt.</numerusform>
            <numerusform>%n Paletten wurden hinzugefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import sprites from project &apos;%1&apos;</source>
        <translation>Sprites aus Projekt &apos;%1&apos; importieren</translation>
    </message>
</context>
<context>
    <name>Zorv::SpriteImport</name>
    <message>
        <source>&apos;%1&apos; was left out: its pixels are broken.</source>
        <translation>&apos;%1&apos; wurde ausgelassen: Die Pixel sind beschädigt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was left out: it is no longer in its file.</source>
        <translation>&apos;%1&apos; wurde ausgelassen: In der Datei gibt es das Sprite nicht mehr.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was left out: the picture is too large for a sprite here, or memory is short.</source>
        <translation>&apos;%1&apos; wurde ausgelassen: Das Bild ist hier für ein Sprite zu groß, oder der Speicher reicht nicht.</translation>
    </message>
</context>
<context>
    <name>Zorv::SpriteList</name>
    <message>
        <source>The pixels of this sprite are missing or broken.</source>
        <translation>Die Pixel dieses Sprites fehlen oder sind beschädigt.</translation>
    </message>
    <message>
        <source>No frame shows this sprite.</source>
        <translation>Kein Frame zeigt diesen Sprite.</translation>
    </message>
</context>
<context>
    <name>Zorv::SpriteSave</name>
    <message>
        <source>Format of the files:</source>
        <translation>Format der Dateien:</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of these names are in the folder already. Replace them?</source>
        <translation>
            <numerusform>Im Ordner gibt es schon %n Datei mit einem dieser Namen. Ersetzen?</numerusform>
            <numerusform>Im Ordner gibt es schon %n Dateien mit diesen Namen. Ersetzen?</numerusform>
        </translation>
    </message>
    <message>
        <source>The sprite for &apos;%1&apos; is not there any more.</source>
        <translation>Den Sprite für &apos;%1&apos; gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not written: the pixels of the sprite are missing or broken.</source>
        <translation>&apos;%1&apos; wird nicht geschrieben: Die Pixel des Sprites fehlen oder sind beschädigt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not written: no image can be saved in this format. Please take another one.</source>
        <translation>&apos;%1&apos; wird nicht geschrieben: In diesem Format lässt sich kein Bild speichern. Bitte ein anderes nehmen.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) written.</source>
        <translation>
            <numerusform>%n Datei geschrieben.</numerusform>
            <numerusform>%n Dateien geschrieben.</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; was written without the transparency of the picture: the format has no place for it. PNG keeps it.</source>
        <translation>&apos;%1&apos; wurde ohne die Transparenz des Bildes geschrieben: Das Format hat keinen Platz dafür. PNG behält sie.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was written without what is half transparent in the picture: GIF has no place for it. PNG keeps it.</source>
        <translation>&apos;%1&apos; wurde ohne das Halbtransparente des Bildes geschrieben: GIF hat keinen Platz dafür. PNG behält es.</translation>
    </message>
</context>
<context>
    <name>Zorv::SpriteTexts</name>
    <message>
        <source>Sprite:</source>
        <translation>Sprite:</translation>
    </message>
    <message>
        <source>The sprite on the canvas</source>
        <translation>Das Sprite auf der Zeichenfläche</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>How the layer is mixed with what is below it; only in true colour, for indexed layers have no colours of their own</source>
        <translation>Wie die Ebene mit dem darunter gemischt wird; nur in Echtfarben, denn indizierte Ebenen haben keine eigenen Farben</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>Deckkraft:</translation>
    </message>
    <message>
        <source>How much of the layer is seen, in percent; only in true colour, for indexed layers have no colours of their own</source>
        <translation>Wie viel von der Ebene zu sehen ist, in Prozent; nur in Echtfarben, denn indizierte Ebenen haben keine eigenen Farben</translation>
    </message>
    <message>
        <source>Move axis</source>
        <translation>Achse verschieben</translation>
    </message>
    <message>
        <source>Change palette</source>
        <translation>Palette ändern</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Crop image</source>
        <translation>Bild zuschneiden</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Malen</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Radieren</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Flip image</source>
        <translation>Bild spiegeln</translation>
    </message>
    <message>
        <source>Add layer</source>
        <translation>Ebene hinzufügen</translation>
    </message>
    <message>
        <source>Change mode of layer</source>
        <translation>Modus der Ebene ändern</translation>
    </message>
    <message>
        <source>Delete layer</source>
        <translation>Ebene löschen</translation>
    </message>
    <message>
        <source>Rename layer</source>
        <translation>Ebene umbenennen</translation>
    </message>
    <message>
        <source>Change opacity of layer</source>
        <translation>Deckkraft der Ebene ändern</translation>
    </message>
    <message>
        <source>Merge all layers</source>
        <translation>Alle Ebenen vereinen</translation>
    </message>
    <message>
        <source>Merge visible layers</source>
        <translation>Sichtbare Ebenen vereinen</translation>
    </message>
    <message>
        <source>Move selection</source>
        <translation>Auswahl verschieben</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Replace colors</source>
        <translation>Farben ersetzen</translation>
    </message>
    <message>
        <source>Resize image</source>
        <translation>Bildgröße ändern</translation>
    </message>
    <message>
        <source>Rotate image</source>
        <translation>Bild drehen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Change format</source>
        <translation>Form ändern</translation>
    </message>
    <message>
        <source>Change size of canvas</source>
        <translation>Größe der Zeichenfläche ändern</translation>
    </message>
    <message>
        <source>Restore unsaved work</source>
        <translation>Nicht gespeicherte Arbeit wiederherstellen</translation>
    </message>
    <message>
        <source>Change properties</source>
        <translation>Eigenschaften ändern</translation>
    </message>
</context>
<context>
    <name>Zorv::SpriteWorkspace</name>
    <message>
        <source>Canvas</source>
        <translation>Zeichenfläche</translation>
    </message>
</context>
<context>
    <name>Zorv::TextCodecs</name>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
</context>
<context>
    <name>Zorv::TimeLineWidget</name>
    <message>
        <source>One tick longer</source>
        <translation>Einen Tick länger</translation>
    </message>
    <message>
        <source>One tick shorter</source>
        <translation>Einen Tick kürzer</translation>
    </message>
    <message>
        <source>Without end</source>
        <translation>Ohne Ende</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Loop from here</source>
        <translation>Schleife ab hier</translation>
    </message>
    <message>
        <source>Loop up to here</source>
        <translation>Schleife bis hier</translation>
    </message>
    <message>
        <source>Loop over the selection</source>
        <translation>Schleife über die Auswahl</translation>
    </message>
    <message>
        <source>No loop</source>
        <translation>Keine Schleife</translation>
    </message>
</context>
<context>
    <name>Zorv::ZorvTranslator</name>
    <message>
        <source>No document.</source>
        <translation>Kein Dokument.</translation>
    </message>
    <message>
        <source>Code toolbar</source>
        <translation>Code-Werkzeugleiste</translation>
    </message>
    <message>
        <source>Centralize origin</source>
        <translation>Ursprung zentrieren</translation>
    </message>
    <message>
        <source>Main cross</source>
        <translation>Hauptkreuz</translation>
    </message>
    <message>
        <source>Secondary cross</source>
        <translation>Zweites Kreuz</translation>
    </message>
    <message>
        <source>Extra cross</source>
        <translation>Zusatzkreuz</translation>
    </message>
    <message>
        <source>Rulers</source>
        <translation>Lineale</translation>
    </message>
    <message>
        <source>Guide lines</source>
        <translation>Hilfslinien</translation>
    </message>
    <message>
        <source>Attack Box</source>
        <translation>Angriffsbox</translation>
    </message>
    <message>
        <source>Collision Box</source>
        <translation>Kollisionsbox</translation>
    </message>
    <message>
        <source>Code snippets</source>
        <translation>Code-Bausteine</translation>
    </message>
    <message>
        <source>Insert code snippet</source>
        <translation>Code-Baustein einfügen</translation>
    </message>
    <message>
        <source>New code snippet</source>
        <translation>Neuer Code-Baustein</translation>
    </message>
    <message>
        <source>Edit code snippet</source>
        <translation>Code-Baustein bearbeiten</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Go to line...</source>
        <translation>Gehe zu Zeile ...</translation>
    </message>
    <message>
        <source>Previous syntax error</source>
        <translation>Voriger Syntaxfehler</translation>
    </message>
    <message>
        <source>Next syntax error</source>
        <translation>Nächster Syntaxfehler</translation>
    </message>
    <message>
        <source>Previous deprecation</source>
        <translation>Vorige veraltete Stelle</translation>
    </message>
    <message>
        <source>Next deprecation</source>
        <translation>Nächste veraltete Stelle</translation>
    </message>
    <message>
        <source>Comment/Uncomment selection</source>
        <translation>Auswahl aus-/einkommentieren</translation>
    </message>
    <message>
        <source>Fold all code blocks</source>
        <translation>Alle Code-Blöcke einklappen</translation>
    </message>
    <message>
        <source>Unfold all coded blocks</source>
        <translation>Alle Code-Blöcke ausklappen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>Speichern unter ...</translation>
    </message>
    <message>
        <source>Palettes</source>
        <translation>Paletten</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Clear all unused</source>
        <translation>Alle unbenutzten entfernen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Remove all duplicates</source>
        <translation>Alle doppelten entfernen</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Ändern ...</translation>
    </message>
    <message>
        <source>Remap</source>
        <translation>Neu zuordnen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Exchange position of selected colors</source>
        <translation>Positionen der gewählten Farben tauschen</translation>
    </message>
    <message>
        <source>Sets the color of the selected slots</source>
        <translation>Setzt die Farbe der gewählten Plätze</translation>
    </message>
    <message>
        <source>Apply to the sprites</source>
        <translation>Auf die Sprites anwenden</translation>
    </message>
    <message>
        <source>Previous palette</source>
        <translation>Vorige Palette</translation>
    </message>
    <message>
        <source>Next palette</source>
        <translation>Nächste Palette</translation>
    </message>
    <message>
        <source>Open palette</source>
        <translation>Palette öffnen</translation>
    </message>
    <message>
        <source>Save current palette</source>
        <translation>Aktuelle Palette speichern</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>Edit code</source>
        <translation>Code bearbeiten</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Edit animation code</source>
        <translation>Animationscode bearbeiten</translation>
    </message>
    <message>
        <source>Save as animated GIF...</source>
        <translation>Als animiertes GIF speichern ...</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Move 1px to the left</source>
        <translation>1 px nach links</translation>
    </message>
    <message>
        <source>Move 1px up</source>
        <translation>1 px nach oben</translation>
    </message>
    <message>
        <source>Move 1px to the right</source>
        <translation>1 px nach rechts</translation>
    </message>
    <message>
        <source>Move 1px down</source>
        <translation>1 px nach unten</translation>
    </message>
    <message>
        <source>Add frame</source>
        <translation>Einzelbild hinzufügen</translation>
    </message>
    <message>
        <source>Delete frame</source>
        <translation>Einzelbild löschen</translation>
    </message>
    <message>
        <source>Add Attack box</source>
        <translation>Angriffsbox hinzufügen</translation>
    </message>
    <message>
        <source>Add Collision box</source>
        <translation>Kollisionsbox hinzufügen</translation>
    </message>
    <message>
        <source>Delete selected Contact boxes</source>
        <translation>Gewählte Kontaktboxen löschen</translation>
    </message>
    <message>
        <source>Delete all Contact boxes</source>
        <translation>Alle Kontaktboxen löschen</translation>
    </message>
    <message>
        <source>Delete all Contact boxes of current animation</source>
        <translation>Alle Kontaktboxen der aktuellen Animation löschen</translation>
    </message>
    <message>
        <source>Switch Contact box type</source>
        <translation>Art der Kontaktbox wechseln</translation>
    </message>
    <message>
        <source>Copy Contact boxes of previous frame</source>
        <translation>Kontaktboxen des vorigen Einzelbilds kopieren</translation>
    </message>
    <message>
        <source>Use these Contact boxes in all other instances of this frame</source>
        <translation>Diese Kontaktboxen bei allen anderen Vorkommen dieses Einzelbilds verwenden</translation>
    </message>
    <message>
        <source>Optimize</source>
        <translation>Optimieren</translation>
    </message>
    <message>
        <source>Import from another project...</source>
        <translation>Aus anderem Projekt importieren ...</translation>
    </message>
    <message>
        <source>Apply time to all next frames</source>
        <translation>Zeit auf alle folgenden Einzelbilder anwenden</translation>
    </message>
    <message>
        <source>Apply flip to all next frames</source>
        <translation>Spiegelung auf alle folgenden Einzelbilder anwenden</translation>
    </message>
    <message>
        <source>Apply offset to all next frames</source>
        <translation>Versatz auf alle folgenden Einzelbilder anwenden</translation>
    </message>
    <message>
        <source>Apply scale to all next frames</source>
        <translation>Skalierung auf alle folgenden Einzelbilder anwenden</translation>
    </message>
    <message>
        <source>Alignment Tool</source>
        <translation>Ausrichtungswerkzeug</translation>
    </message>
    <message>
        <source>Frames:</source>
        <translation>Einzelbilder:</translation>
    </message>
    <message>
        <source>X axis:</source>
        <translation>X-Achse:</translation>
    </message>
    <message>
        <source>Y axis:</source>
        <translation>Y-Achse:</translation>
    </message>
    <message>
        <source>Flip:</source>
        <translation>Spiegeln:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Vertically</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Horizontally</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <source>X scale:</source>
        <translation>X-Skala:</translation>
    </message>
    <message>
        <source>Y scale:</source>
        <translation>Y-Skala:</translation>
    </message>
    <message>
        <source>Angle:</source>
        <translation>Winkel:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Zeit:</translation>
    </message>
    <message>
        <source>Previous animation</source>
        <translation>Vorige Animation</translation>
    </message>
    <message>
        <source>Next animation</source>
        <translation>Nächste Animation</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Voriges Einzelbild</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Nächstes Einzelbild</translation>
    </message>
    <message>
        <source>OnionSkin</source>
        <translation>Zwiebelschalen</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>Previous sprite</source>
        <translation>Voriges Sprite</translation>
    </message>
    <message>
        <source>Next sprite</source>
        <translation>Nächstes Sprite</translation>
    </message>
    <message>
        <source>Move canvas</source>
        <translation>Zeichenfläche verschieben</translation>
    </message>
    <message>
        <source>Move selection</source>
        <translation>Auswahl verschieben</translation>
    </message>
    <message>
        <source>Rectangle selection</source>
        <translation>Rechteckauswahl</translation>
    </message>
    <message>
        <source>Free selection</source>
        <translation>Freie Auswahl</translation>
    </message>
    <message>
        <source>Color picker</source>
        <translation>Farbpipette</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Remap pen</source>
        <translation>Zuordnungsstift</translation>
    </message>
    <message>
        <source>Paint bucket</source>
        <translation>Fülleimer</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplizieren</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Negativ multiplizieren</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Überlagern</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Abdunkeln</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aufhellen</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Farbig abwedeln</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Farbig nachbelichten</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Hartes Licht</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Weiches Licht</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Ausschluss</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Merge visible</source>
        <translation>Sichtbare vereinen</translation>
    </message>
    <message>
        <source>Merge all</source>
        <translation>Alle vereinen</translation>
    </message>
    <message>
        <source>Change image...</source>
        <translation>Bild ändern ...</translation>
    </message>
    <message>
        <source>Save image changes</source>
        <translation>Bildänderungen speichern</translation>
    </message>
    <message>
        <source>Save image...</source>
        <translation>Bild speichern ...</translation>
    </message>
    <message>
        <source>Crop image</source>
        <translation>Bild zuschneiden</translation>
    </message>
    <message>
        <source>Switch to the frame&apos;s sprite</source>
        <translation>Zum Sprite des Einzelbilds wechseln</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Flip horizontally</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip vertically</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Split channels</source>
        <translation>Kanäle trennen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>Switch to the sprite palette</source>
        <translation>Zur Palette des Sprites wechseln</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Change sound...</source>
        <translation>Klang ändern ...</translation>
    </message>
    <message>
        <source>Save sound as...</source>
        <translation>Klang speichern unter ...</translation>
    </message>
    <message>
        <source>Resample</source>
        <translation>Abtastrate ändern</translation>
    </message>
    <message>
        <source>Play with loop</source>
        <translation>In Schleife abspielen</translation>
    </message>
    <message>
        <source>Previous sound</source>
        <translation>Voriger Klang</translation>
    </message>
    <message>
        <source>Next sound</source>
        <translation>Nächster Klang</translation>
    </message>
    <message>
        <source>Organizer</source>
        <translation>Organisator</translation>
    </message>
    <message>
        <source>Move one position up</source>
        <translation>Einen Platz nach oben</translation>
    </message>
    <message>
        <source>Move one position down</source>
        <translation>Einen Platz nach unten</translation>
    </message>
    <message>
        <source>Move ten positions up</source>
        <translation>Zehn Plätze nach oben</translation>
    </message>
    <message>
        <source>Move ten positions down</source>
        <translation>Zehn Plätze nach unten</translation>
    </message>
    <message>
        <source>Move to the top</source>
        <translation>An den Anfang</translation>
    </message>
    <message>
        <source>Move to the bottom</source>
        <translation>An das Ende</translation>
    </message>
    <message>
        <source>Organize automatically</source>
        <translation>Automatisch ordnen</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vorschaubilder</translation>
    </message>
    <message>
        <source>Add selected to the current animation</source>
        <translation>Gewählte zur aktuellen Animation hinzufügen</translation>
    </message>
    <message>
        <source>Add all to the current animation</source>
        <translation>Alle zur aktuellen Animation hinzufügen</translation>
    </message>
    <message>
        <source>New animation with selected</source>
        <translation>Neue Animation aus den gewählten</translation>
    </message>
    <message>
        <source>New animation with all</source>
        <translation>Neue Animation aus allen</translation>
    </message>
    <message>
        <source>Save selected images</source>
        <translation>Gewählte Bilder speichern</translation>
    </message>
    <message>
        <source>Show/Hide the code toolbar in all code editors</source>
        <translation>Code-Werkzeugleiste in allen Code-Editoren ein-/ausblenden</translation>
    </message>
    <message>
        <source>Place the origin at the center of the workspace</source>
        <translation>Ursprung in die Mitte des Arbeitsbereichs setzen</translation>
    </message>
    <message>
        <source>Show/Hide the main cross</source>
        <translation>Hauptkreuz ein-/ausblenden</translation>
    </message>
    <message>
        <source>Show/Hide the secondary cross</source>
        <translation>Zweites Kreuz ein-/ausblenden</translation>
    </message>
    <message>
        <source>Show/Hide the extra cross</source>
        <translation>Zusatzkreuz ein-/ausblenden</translation>
    </message>
    <message>
        <source>Show/Hide the Rulers</source>
        <translation>Lineale ein-/ausblenden</translation>
    </message>
    <message>
        <source>Show/Hide the Guide lines</source>
        <translation>Hilfslinien ein-/ausblenden</translation>
    </message>
    <message>
        <source>Show/Hide the Attack contact boxes</source>
        <translation>Angriffsboxen ein-/ausblenden</translation>
    </message>
    <message>
        <source>Show/Hide the Collision contact boxes</source>
        <translation>Kollisionsboxen ein-/ausblenden</translation>
    </message>
    <message>
        <source>Insert the current code snippet</source>
        <translation>Aktuellen Code-Baustein einfügen</translation>
    </message>
    <message>
        <source>Create a new code snippet</source>
        <translation>Neuen Code-Baustein anlegen</translation>
    </message>
    <message>
        <source>Edit the current code snippet</source>
        <translation>Aktuellen Code-Baustein bearbeiten</translation>
    </message>
    <message>
        <source>Go to the specifed line</source>
        <translation>Zur angegebenen Zeile gehen</translation>
    </message>
    <message>
        <source>Go to the previous syntax error</source>
        <translation>Zum vorigen Syntaxfehler gehen</translation>
    </message>
    <message>
        <source>Go to the next syntax error</source>
        <translation>Zum nächsten Syntaxfehler gehen</translation>
    </message>
    <message>
        <source>Go to the previous deprecation</source>
        <translation>Zur vorigen veralteten Stelle gehen</translation>
    </message>
    <message>
        <source>Go to the next deprecation</source>
        <translation>Zur nächsten veralteten Stelle gehen</translation>
    </message>
    <message>
        <source>Comment/Uncomment all selected lines</source>
        <translation>Alle gewählten Zeilen aus-/einkommentieren</translation>
    </message>
    <message>
        <source>Remove all palettes</source>
        <translation>Alle Paletten entfernen</translation>
    </message>
    <message>
        <source>Remove all unused palettes</source>
        <translation>Alle unbenutzten Paletten entfernen</translation>
    </message>
    <message>
        <source>Add one or more palettes</source>
        <translation>Eine oder mehrere Paletten hinzufügen</translation>
    </message>
    <message>
        <source>Remove the current palette</source>
        <translation>Aktuelle Palette entfernen</translation>
    </message>
    <message>
        <source>Remove all duplicate palettes</source>
        <translation>Alle doppelten Paletten entfernen</translation>
    </message>
    <message>
        <source>Define new colors to the palette from a file...</source>
        <translation>Neue Farben der Palette aus einer Datei nehmen ...</translation>
    </message>
    <message>
        <source>Save the palette as a file...</source>
        <translation>Palette als Datei speichern ...</translation>
    </message>
    <message>
        <source>Open the palette Remap tool</source>
        <translation>Werkzeug zum Neuzuordnen der Palette öffnen</translation>
    </message>
    <message>
        <source>Apply the current palette to the specified sprites</source>
        <translation>Aktuelle Palette auf die angegebenen Sprites anwenden</translation>
    </message>
    <message>
        <source>Open palette from a file...</source>
        <translation>Palette aus einer Datei öffnen ...</translation>
    </message>
    <message>
        <source>Save current palette to a new file...</source>
        <translation>Aktuelle Palette in eine neue Datei speichern ...</translation>
    </message>
    <message>
        <source>Edit animation code in code editor</source>
        <translation>Animationscode im Code-Editor bearbeiten</translation>
    </message>
    <message>
        <source>Add a new animation</source>
        <translation>Neue Animation hinzufügen</translation>
    </message>
    <message>
        <source>Remove the current animation</source>
        <translation>Aktuelle Animation entfernen</translation>
    </message>
    <message>
        <source>Duplicate the current animation</source>
        <translation>Aktuelle Animation duplizieren</translation>
    </message>
    <message>
        <source>Edit the code of current animation</source>
        <translation>Code der aktuellen Animation bearbeiten</translation>
    </message>
    <message>
        <source>Save the current animation as an animated GIF...</source>
        <translation>Aktuelle Animation als animiertes GIF speichern ...</translation>
    </message>
    <message>
        <source>Play the current animation</source>
        <translation>Aktuelle Animation abspielen</translation>
    </message>
    <message>
        <source>Stop the animation</source>
        <translation>Animation anhalten</translation>
    </message>
    <message>
        <source>Move the sprite 1px to the left</source>
        <translation>Sprite 1 px nach links verschieben</translation>
    </message>
    <message>
        <source>Move the sprite 1px up</source>
        <translation>Sprite 1 px nach oben verschieben</translation>
    </message>
    <message>
        <source>Move the sprite 1px to the right</source>
        <translation>Sprite 1 px nach rechts verschieben</translation>
    </message>
    <message>
        <source>Move the sprite 1px down</source>
        <translation>Sprite 1 px nach unten verschieben</translation>
    </message>
    <message>
        <source>Add a new frame in the animation</source>
        <translation>Neues Einzelbild zur Animation hinzufügen</translation>
    </message>
    <message>
        <source>Remove the current frame</source>
        <translation>Aktuelles Einzelbild entfernen</translation>
    </message>
    <message>
        <source>Enable/disable the drawing mode for Attack contact box</source>
        <translation>Zeichenmodus für Angriffsboxen ein-/ausschalten</translation>
    </message>
    <message>
        <source>Enable/disable the drawing mode for Collision contact box</source>
        <translation>Zeichenmodus für Kollisionsboxen ein-/ausschalten</translation>
    </message>
    <message>
        <source>Remove all selected Contact boxes</source>
        <translation>Alle gewählten Kontaktboxen entfernen</translation>
    </message>
    <message>
        <source>Remove all Contact boxes of current frame</source>
        <translation>Alle Kontaktboxen des aktuellen Einzelbilds entfernen</translation>
    </message>
    <message>
        <source>Remove all Contact boxs of current animation</source>
        <translation>Alle Kontaktboxen der aktuellen Animation entfernen</translation>
    </message>
    <message>
        <source>Switch type of all selected Contact boxes</source>
        <translation>Art aller gewählten Kontaktboxen wechseln</translation>
    </message>
    <message>
        <source>Copy all Contact boxes of previous frame</source>
        <translation>Alle Kontaktboxen des vorigen Einzelbilds kopieren</translation>
    </message>
    <message>
        <source>Optimize animation code</source>
        <translation>Animationscode optimieren</translation>
    </message>
    <message>
        <source>Import one or more animations from another opened project...</source>
        <translation>Eine oder mehrere Animationen aus einem anderen geöffneten Projekt importieren ...</translation>
    </message>
    <message>
        <source>Enable OnionSkin</source>
        <translation>Zwiebelschalen einschalten</translation>
    </message>
    <message>
        <source>Add one or more sprites</source>
        <translation>Ein oder mehrere Sprites hinzufügen</translation>
    </message>
    <message>
        <source>Add a new layer</source>
        <translation>Neue Ebene hinzufügen</translation>
    </message>
    <message>
        <source>Remove the current layer</source>
        <translation>Aktuelle Ebene entfernen</translation>
    </message>
    <message>
        <source>Duplicate the current layer</source>
        <translation>Aktuelle Ebene duplizieren</translation>
    </message>
    <message>
        <source>Merge all visible layers into one</source>
        <translation>Alle sichtbaren Ebenen zu einer vereinen</translation>
    </message>
    <message>
        <source>Merge all layers into one</source>
        <translation>Alle Ebenen zu einer vereinen</translation>
    </message>
    <message>
        <source>Remove the current sprite</source>
        <translation>Aktuelles Sprite entfernen</translation>
    </message>
    <message>
        <source>Change the image of the sprite from a file...</source>
        <translation>Bild des Sprites aus einer Datei ändern ...</translation>
    </message>
    <message>
        <source>Save changes on current sprite</source>
        <translation>Änderungen am aktuellen Sprite speichern</translation>
    </message>
    <message>
        <source>Save one or more sprites as image files...</source>
        <translation>Ein oder mehrere Sprites als Bilddateien speichern ...</translation>
    </message>
    <message>
        <source>Remove free borders from the current sprite</source>
        <translation>Leere Ränder des aktuellen Sprites entfernen</translation>
    </message>
    <message>
        <source>Duplicate the current sprite</source>
        <translation>Aktuelles Sprite duplizieren</translation>
    </message>
    <message>
        <source>Import one or more sprites from another opened project...</source>
        <translation>Ein oder mehrere Sprites aus einem anderen geöffneten Projekt importieren ...</translation>
    </message>
    <message>
        <source>Switch to the sprite of the current frame</source>
        <translation>Zum Sprite des aktuellen Einzelbilds wechseln</translation>
    </message>
    <message>
        <source>Split the viewport with the Original size at left</source>
        <translation>Ansicht teilen, links die Originalgröße</translation>
    </message>
    <message>
        <source>Canvas properties (format and size)</source>
        <translation>Eigenschaften der Zeichenfläche (Format und Größe)</translation>
    </message>
    <message>
        <source>Resize all layers</source>
        <translation>Größe aller Ebenen ändern</translation>
    </message>
    <message>
        <source>Rotate all layers</source>
        <translation>Alle Ebenen drehen</translation>
    </message>
    <message>
        <source>Flip all layers horizontally</source>
        <translation>Alle Ebenen horizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip all layers vertically</source>
        <translation>Alle Ebenen vertikal spiegeln</translation>
    </message>
    <message>
        <source>Split the RGB channels of the current sprite as separate sprites</source>
        <translation>RGB-Kanäle des aktuellen Sprites in einzelne Sprites trennen</translation>
    </message>
    <message>
        <source>Select the entire canvas</source>
        <translation>Ganze Zeichenfläche auswählen</translation>
    </message>
    <message>
        <source>lear any selection</source>
        <translation>Jede Auswahl aufheben</translation>
    </message>
    <message>
        <source>Invert the current selection</source>
        <translation>Aktuelle Auswahl umkehren</translation>
    </message>
    <message>
        <source>Switch the current palette to the palette of the sprite</source>
        <translation>Von der aktuellen Palette zur Palette des Sprites wechseln</translation>
    </message>
    <message>
        <source>Add one or more sounds</source>
        <translation>Einen oder mehrere Klänge hinzufügen</translation>
    </message>
    <message>
        <source>Remove the current sound</source>
        <translation>Aktuellen Klang entfernen</translation>
    </message>
    <message>
        <source>Change the current sound from a file...</source>
        <translation>Aktuellen Klang aus einer Datei ändern ...</translation>
    </message>
    <message>
        <source>Save the sound as WAV...</source>
        <translation>Klang als WAV speichern ...</translation>
    </message>
    <message>
        <source>Resample one or more sounds</source>
        <translation>Abtastrate eines oder mehrerer Klänge ändern</translation>
    </message>
    <message>
        <source>Duplicate the current sound</source>
        <translation>Aktuellen Klang duplizieren</translation>
    </message>
    <message>
        <source>Play the current sound</source>
        <translation>Aktuellen Klang abspielen</translation>
    </message>
    <message>
        <source>Play the current sound with infinite loop</source>
        <translation>Aktuellen Klang in Endlosschleife abspielen</translation>
    </message>
    <message>
        <source>Stop the sound</source>
        <translation>Klang anhalten</translation>
    </message>
    <message>
        <source>Import one or more sounds from another opened project...</source>
        <translation>Einen oder mehrere Klänge aus einem anderen geöffneten Projekt importieren ...</translation>
    </message>
</context>
</TS>
