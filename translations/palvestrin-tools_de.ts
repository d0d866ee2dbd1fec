<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AllKeys</name>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Alle Schlüssel</translation>
    </message>
    <message>
        <source>Add setting…</source>
        <translation>Einstellung hinzufügen…</translation>
    </message>
    <message>
        <source>Add block…</source>
        <translation>Block hinzufügen…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
    </message>
    <message>
        <source>Remove a block</source>
        <translation>Block entfernen</translation>
    </message>
    <message>
        <source>Remove the block “%1” with everything in it? You can undo this.</source>
        <translation>Den Block „%1“ mit allem darin entfernen? Das lässt sich rückgängig machen.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Add a setting</source>
        <translation>Einstellung hinzufügen</translation>
    </message>
    <message>
        <source>Key:</source>
        <translation>Schlüssel:</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Add a block</source>
        <translation>Block hinzufügen</translation>
    </message>
    <message>
        <source>Name of the block:</source>
        <translation>Name des Blocks:</translation>
    </message>
    <message>
        <source>A name is made of letters, digits, “_” and “-”.</source>
        <translation>Ein Name besteht aus Buchstaben, Ziffern, „_“ und „-“.</translation>
    </message>
</context>
<context>
    <name>CurrentSetting</name>
    <message>
        <source>Choose a setting: its meaning is explained here, and what it does is marked on the paper.</source>
        <translation>Wählen Sie eine Einstellung: Hier steht, was sie bedeutet, und auf dem Papier ist markiert, was sie bewirkt.</translation>
    </message>
    <message>
        <source>No program reads this.</source>
        <translation>Kein Programm liest das.</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Standard: %1</translation>
    </message>
    <message>
        <source>The settings of: %1</source>
        <translation>Die Einstellungen von: %1</translation>
    </message>
    <message>
        <source>Holds the settings of all documents and programs.</source>
        <translation>Enthält die Einstellungen aller Dokumente und Programme.</translation>
    </message>
</context>
<context>
    <name>FileKeeper</name>
    <message>
        <source>Another program has changed the file.</source>
        <translation>Ein anderes Programm hat die Datei geändert.</translation>
    </message>
    <message>
        <source>Show what differs…</source>
        <translation>Unterschiede zeigen…</translation>
    </message>
    <message>
        <source>%1 You can look and try here, but not save.</source>
        <translation>%1 Sie können hier schauen und ausprobieren, aber nicht speichern.</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Die Datei lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>Merge with the file</source>
        <translation>Mit der Datei zusammenführen</translation>
    </message>
    <message>
        <source>Reload the file</source>
        <translation>Datei neu laden</translation>
    </message>
    <message>
        <source>The file was read again. Undo brings your changes back.</source>
        <translation>Die Datei wurde neu gelesen. „Rückgängig“ bringt Ihre Änderungen zurück.</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>%1 cannot be stored as it stands. %2</source>
        <translation>%1 lässt sich so nicht speichern. %2</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>The block “%1”: only the first block on top is written.</source>
        <translation>Der Block „%1“: Nur der erste oberste Block wird geschrieben.</translation>
    </message>
    <message>
        <source>Saving loses something</source>
        <translation>Beim Speichern geht etwas verloren</translation>
    </message>
    <message>
        <source>Saving loses what the details name. A backup keeps the file as it was.</source>
        <translation>Beim Speichern geht verloren, was in den Einzelheiten steht. Eine Sicherung bewahrt die alte Datei.</translation>
    </message>
    <message>
        <source>Nothing has been changed, and nothing was written.</source>
        <translation>Nichts wurde geändert, und nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>another program is changing the file; save again when it is done</source>
        <translation>ein anderes Programm ändert gerade die Datei; speichern Sie noch einmal, wenn es fertig ist</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Saved. The file as it was is kept as %1</source>
        <translation>Gespeichert. Die alte Datei bleibt als %1 erhalten</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Die Änderungen an %1 speichern?</translation>
    </message>
    <message>
        <source>The file is gone. Save writes it anew.</source>
        <translation>Die Datei ist nicht mehr da. „Speichern“ schreibt sie neu.</translation>
    </message>
</context>
<context>
    <name>FirstUse</name>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 characters on a line</source>
        <translation>%1 Zeichen je Zeile</translation>
    </message>
    <message>
        <source>Kind of business</source>
        <translation>Art des Betriebs</translation>
    </message>
    <message>
        <source>Set up your paper</source>
        <translation>Richten Sie Ihr Papier ein</translation>
    </message>
    <message>
        <source>There are no settings yet. Choose what comes nearest: the paper on the right shows it. Everything can be changed afterwards.</source>
        <translation>Es gibt noch keine Einstellungen. Wählen Sie, was am besten passt: Das Papier rechts zeigt es. Alles lässt sich später ändern.</translation>
    </message>
    <message>
        <source>Use these settings</source>
        <translation>Diese Einstellungen verwenden</translation>
    </message>
    <message>
        <source>Start empty</source>
        <translation>Ohne Vorlage beginnen</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Set up a paper</source>
        <translation>Ein Papier einrichten</translation>
    </message>
    <message>
        <source>Choose a document on the left. Its settings are in the middle, its paper is on the right, printed by the real program. Every change shows there at once.</source>
        <translation>Wählen Sie links ein Dokument. In der Mitte stehen seine Einstellungen, rechts liegt sein Papier, gedruckt vom Druckprogramm selbst. Jede Änderung zeigt sich dort sofort.</translation>
    </message>
    <message>
        <source>See what a setting does</source>
        <translation>Sehen, was eine Einstellung bewirkt</translation>
    </message>
    <message>
        <source>Go to a field: its meaning is explained below, and the rows that it concerns are marked on the paper. What runs over the edge is red.</source>
        <translation>Gehen Sie in ein Feld: Darunter steht seine Bedeutung, und auf dem Papier sind die Zeilen markiert, die es betrifft. Was über den Rand läuft, ist rot.</translation>
    </message>
    <message>
        <source>Nothing is lost</source>
        <translation>Nichts geht verloren</translation>
    </message>
    <message>
        <source>Nothing is written before you save. Undo takes back every step, and the file as it was stays beside the new one.</source>
        <translation>Vor dem Speichern wird nichts geschrieben. „Rückgängig“ nimmt jeden Schritt zurück, und die alte Datei bleibt neben der neuen liegen.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>How it works</source>
        <translation>So geht es</translation>
    </message>
</context>
<context>
    <name>MergeDialog</name>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation>Die Datei hat sich geändert</translation>
    </message>
    <message>
        <source>Another program has changed the file. Tick the settings that are to be as they are in the file; the others stay as they are here.</source>
        <translation>Ein anderes Programm hat die Datei geändert. Haken Sie an, was aus der Datei übernommen werden soll; alles andere bleibt, wie es hier ist.</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>In der Datei</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Abweichende Einstellungen</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>Take all from the file</source>
        <translation>Alles aus der Datei übernehmen</translation>
    </message>
    <message>
        <source>This can only be as it is in the file.</source>
        <translation>Das kann nur so sein wie in der Datei.</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Documents and parts</source>
        <translation>Dokumente und Teile</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Alle Schlüssel</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>something is wrong</source>
        <translation>etwas stimmt nicht</translation>
    </message>
</context>
<context>
    <name>PaperPane</name>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Fit the paper to the window</source>
        <translation>Papier an das Fenster anpassen</translation>
    </message>
    <message>
        <source>Copy the paper as text</source>
        <translation>Papier als Text kopieren</translation>
    </message>
    <message>
        <source>Print job</source>
        <translation>Druckauftrag</translation>
    </message>
    <message>
        <source>The print job that is shown on the paper</source>
        <translation>Der Druckauftrag, der auf dem Papier zu sehen ist</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>Beispiel: %1</translation>
    </message>
    <message>
        <source>A job of your own…</source>
        <translation>Eigener Druckauftrag…</translation>
    </message>
    <message>
        <source>A job of your own</source>
        <translation>Eigener Druckauftrag</translation>
    </message>
    <message>
        <source>Print jobs (*.xml);;All files (*)</source>
        <translation>Druckaufträge (*.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The job prints nothing.</source>
        <translation>Der Auftrag druckt nichts.</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Save the paper as a picture</source>
        <translation>Papier als Bild speichern</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF-Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>PaperTask</name>
    <message>
        <source>There is no room for the preview in %1.</source>
        <translation>In %1 ist kein Platz für die Vorschau.</translation>
    </message>
    <message>
        <source>The job takes too long to be shown.</source>
        <translation>Der Auftrag dauert zu lange, um gezeigt zu werden.</translation>
    </message>
    <message>
        <source>The program that prints cannot be started: %1</source>
        <translation>Das Programm, das druckt, lässt sich nicht starten: %1</translation>
    </message>
    <message>
        <source>The program that prints has crashed.</source>
        <translation>Das Programm, das druckt, ist abgestürzt.</translation>
    </message>
</context>
<context>
    <name>PaperView</name>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
</context>
<context>
    <name>Register</name>
    <message>
        <source>To the cash register</source>
        <translation>An die Registrierkasse</translation>
    </message>
    <message>
        <source>, with a modifier that is no number</source>
        <translation>, mit einem Auf- oder Abschlag, der keine Zahl ist</translation>
    </message>
    <message>
        <source>, less %1</source>
        <translation>, abzüglich %1</translation>
    </message>
    <message>
        <source>, plus %1</source>
        <translation>, zuzüglich %1</translation>
    </message>
    <message>
        <source>sale: %1 x %2 at %3</source>
        <translation>Verkauf: %1 x %2 zu %3</translation>
    </message>
    <message>
        <source>no quantity</source>
        <translation>ohne Menge</translation>
    </message>
    <message>
        <source>an item without a name</source>
        <translation>ein Artikel ohne Namen</translation>
    </message>
    <message>
        <source>no department</source>
        <translation>keine Warengruppe</translation>
    </message>
    <message>
        <source>department %1</source>
        <translation>Warengruppe %1</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>keine Zahl</translation>
    </message>
    <message>
        <source>reduction</source>
        <translation>Nachlass</translation>
    </message>
    <message>
        <source>discount</source>
        <translation>Rabatt</translation>
    </message>
    <message>
        <source>cash</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>credit card</source>
        <translation>Kreditkarte</translation>
    </message>
    <message>
        <source>cheque</source>
        <translation>Scheck</translation>
    </message>
    <message>
        <source>not paid</source>
        <translation>nicht bezahlt</translation>
    </message>
    <message>
        <source>The register will show %1</source>
        <translation>Die Kasse wird %1 anzeigen</translation>
    </message>
    <message>
        <source>: sales %1</source>
        <translation>: Verkäufe %1</translation>
    </message>
    <message>
        <source>, less reductions %1</source>
        <translation>, abzüglich Nachlässe %1</translation>
    </message>
    <message>
        <source>, less discount %1</source>
        <translation>, abzüglich Rabatt %1</translation>
    </message>
    <message>
        <source>Not counted: 1 command that could not be read.</source>
        <translation>Nicht mitgezählt: 1 unlesbarer Befehl.</translation>
    </message>
    <message>
        <source>Not counted: %1 commands that could not be read.</source>
        <translation>Nicht mitgezählt: %1 unlesbare Befehle.</translation>
    </message>
    <message>
        <source>Settled by %1</source>
        <translation>Bezahlt mit: %1</translation>
    </message>
    <message>
        <source>%1 less than the sum.</source>
        <translation>%1 weniger als die Summe.</translation>
    </message>
    <message>
        <source>%1 more than the sum.</source>
        <translation>%1 mehr als die Summe.</translation>
    </message>
</context>
<context>
    <name>ResultList</name>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>Gefundene Einstellungen</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>No setting has “%1” in its name, its explanation or its value.</source>
        <translation>Keine Einstellung hat „%1“ in Name, Erklärung oder Wert.</translation>
    </message>
    <message>
        <source>Nothing has been changed.</source>
        <translation>Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Alles ist in Ordnung.</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Einstellung suchen</translation>
    </message>
    <message>
        <source>Looks in names, explanations, keys and values</source>
        <translation>Sucht in Namen, Erklärungen, Schlüsseln und Werten</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Probleme (%1)</translation>
    </message>
</context>
<context>
    <name>SettingField</name>
    <message>
        <source>default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Reset to the default</source>
        <translation>Auf den Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Reset %1 to the default</source>
        <translation>%1 auf den Standard zurücksetzen</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Receipt printer</source>
        <translation>Bondrucker</translation>
    </message>
    <message>
        <source>characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Zeilenbreite</translation>
    </message>
    <message>
        <source>Quantity column</source>
        <translation>Spalte Menge</translation>
    </message>
    <message>
        <source>Price column</source>
        <translation>Spalte Preis</translation>
    </message>
    <message>
        <source>Total column</source>
        <translation>Spalte Betrag</translation>
    </message>
    <message>
        <source>Item name</source>
        <translation>Name des Artikels</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Oberer Rand</translation>
    </message>
    <message>
        <source>Height of the top margin</source>
        <translation>Höhe des Randes</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Header lines</source>
        <translation>Kopfzeilen</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Lieferadresse</translation>
    </message>
    <message>
        <source>Billing address</source>
        <translation>Rechnungsadresse</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Licence number</source>
        <translation>USt-IdNr.</translation>
    </message>
    <message>
        <source>Fiscal code</source>
        <translation>Steuernummer</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Guthaben</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tisch</translation>
    </message>
    <message>
        <source>Waiter</source>
        <translation>Bedienung</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Open the cash drawer</source>
        <translation>Kassenlade öffnen</translation>
    </message>
    <message>
        <source>Rows per page</source>
        <translation>Zeilen je Seite</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Translation file</source>
        <translation>Übersetzungsdatei</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Niedrigste Stufe</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Database name</source>
        <translation>Name der Datenbank</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Folder of the programs</source>
        <translation>Ordner der Programme</translation>
    </message>
    <message>
        <source>Logo picture</source>
        <translation>Logobild</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>Kopf</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Bestellung</translation>
    </message>
    <message>
        <source>Without effect</source>
        <translation>Ohne Wirkung</translation>
    </message>
    <message>
        <source>You have no permission to change this file.</source>
        <translation>Sie haben keine Schreibrechte für diese Datei.</translation>
    </message>
    <message>
        <source>Its folder cannot be made: a file is in the way.</source>
        <translation>Der Ordner lässt sich nicht anlegen: Eine Datei steht im Weg.</translation>
    </message>
    <message>
        <source>You have no permission to write in its folder.</source>
        <translation>Sie haben keine Schreibrechte für ihren Ordner.</translation>
    </message>
    <message>
        <source>Restaurant</source>
        <translation>Restaurant</translation>
    </message>
    <message>
        <source>Kitchen tickets with table and waiter, bills and receipts.</source>
        <translation>Küchenbons mit Tisch und Bedienung, Zwischenrechnungen und Belege.</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Bar</translation>
    </message>
    <message>
        <source>Short receipts with date and time; the drawer opens.</source>
        <translation>Kurze Belege mit Datum und Uhrzeit; die Kassenlade öffnet sich.</translation>
    </message>
    <message>
        <source>Shop</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Receipts without tables, and invoices and delivery notes for customers.</source>
        <translation>Belege ohne Tische, Rechnungen und Lieferscheine für Kunden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no key; a key is two or more names of letters, digits, &apos;_&apos; and &apos;-&apos;, with dots between</source>
        <translation>„%1“ ist kein Schlüssel; ein Schlüssel besteht aus zwei oder mehr Namen aus Buchstaben, Ziffern, „_“ und „-“ mit Punkten dazwischen</translation>
    </message>
    <message>
        <source>a value cannot hold &apos;%1&apos;; leave it out</source>
        <translation>ein Wert kann kein „%1“ enthalten; lassen Sie es weg</translation>
    </message>
    <message>
        <source>a value has room for %1 bytes, this one has %2; shorten it</source>
        <translation>ein Wert hat Platz für %1 Bytes, dieser hat %2; kürzen Sie ihn</translation>
    </message>
    <message>
        <source>give a whole number from 0 to %1</source>
        <translation>geben Sie eine ganze Zahl von 0 bis %1 an</translation>
    </message>
    <message>
        <source>give true or false, in small letters</source>
        <translation>geben Sie true oder false an, in Kleinbuchstaben</translation>
    </message>
    <message>
        <source>give one of %1</source>
        <translation>geben Sie eines davon an: %1</translation>
    </message>
    <message>
        <source>give %1</source>
        <translation>geben Sie %1 an</translation>
    </message>
    <message>
        <source>or</source>
        <translation>oder</translation>
    </message>
    <message>
        <source>%1 is not set</source>
        <translation>%1 ist nicht gesetzt</translation>
    </message>
    <message>
        <source>%1, counts as %2</source>
        <translation>%1, gilt als %2</translation>
    </message>
    <message>
        <source>%1; when missing: %2</source>
        <translation>%1; wenn es fehlt: %2</translation>
    </message>
    <message>
        <source>read by: %1</source>
        <translation>gelesen von: %1</translation>
    </message>
    <message>
        <source>consulted by no print method</source>
        <translation>von keiner Druckmethode verwendet</translation>
    </message>
    <message>
        <source>consulted by: %1</source>
        <translation>verwendet von: %1</translation>
    </message>
    <message>
        <source>&quot;palvestrin config list&quot; lists the settings that programs read</source>
        <translation>„palvestrin config list“ zählt die Einstellungen auf, die Programme lesen</translation>
    </message>
    <message>
        <source>the block %1 is never looked into: only the first one of a file is</source>
        <translation>der Block %1 wird nie gelesen: Gelesen wird nur der erste einer Datei</translation>
    </message>
    <message>
        <source>move it to the front, and what is there into it</source>
        <translation>setzen Sie ihn an den Anfang, und was dort steht, in ihn hinein</translation>
    </message>
    <message>
        <source>move its settings into the first block</source>
        <translation>setzen Sie seine Einstellungen in den ersten Block</translation>
    </message>
    <message>
        <source>no program looks into the block %1</source>
        <translation>kein Programm liest den Block %1</translation>
    </message>
    <message>
        <source>it belongs into the block &quot;%1&quot;</source>
        <translation>er gehört in den Block „%1“</translation>
    </message>
    <message>
        <source>the block %1 is empty, which is the same as none</source>
        <translation>der Block %1 ist leer; das ist, als gäbe es ihn nicht</translation>
    </message>
    <message>
        <source>%1 stands outside the blocks, where no program looks</source>
        <translation>%1 steht außerhalb der Blöcke, wo kein Programm hinschaut</translation>
    </message>
    <message>
        <source>move it into a block of the block &quot;%1&quot;</source>
        <translation>setzen Sie es in einen Block des Blocks „%1“</translation>
    </message>
    <message>
        <source>no program reads %1</source>
        <translation>kein Programm liest %1</translation>
    </message>
    <message>
        <source>a name has no dots: put %1 into the block %2</source>
        <translation>ein Name hat keine Punkte: Setzen Sie %1 in den Block %2</translation>
    </message>
    <message>
        <source>it belongs into a block, such as %1</source>
        <translation>es gehört in einen Block, wie %1</translation>
    </message>
    <message>
        <source>did you mean %1?</source>
        <translation>meinten Sie %1?</translation>
    </message>
    <message>
        <source>%1 is given twice: this value %2 does not count, the one in line %3 does</source>
        <translation>%1 steht zweimal da: Dieser Wert %2 zählt nicht, der in Zeile %3 zählt</translation>
    </message>
    <message>
        <source>remove one of them</source>
        <translation>entfernen Sie einen davon</translation>
    </message>
    <message>
        <source>on the paper &quot;%1&quot;, %2 and %3 more take %4 of %5 characters: %6</source>
        <translation>auf dem Papier „%1“ nehmen %2 und %3 weitere %4 von %5 Zeichen ein: %6</translation>
    </message>
    <message>
        <source>descriptions are not cut, and run over the edge</source>
        <translation>Beschreibungen werden nicht gekürzt und laufen über den Rand</translation>
    </message>
    <message>
        <source>nothing is left for the description</source>
        <translation>für die Beschreibung bleibt nichts</translation>
    </message>
    <message>
        <source>make the paper wider or the columns narrower</source>
        <translation>machen Sie das Papier breiter oder die Spalten schmaler</translation>
    </message>
    <message>
        <source>%1 does nothing while %2 is off</source>
        <translation>%1 bewirkt nichts, solange %2 aus ist</translation>
    </message>
    <message>
        <source>set %1 to &quot;true&quot;, or take this one out</source>
        <translation>setzen Sie %1 auf „true“, oder nehmen Sie dieses heraus</translation>
    </message>
    <message>
        <source>%1 changes nothing on paper</source>
        <translation>%1 ändert nichts auf dem Papier</translation>
    </message>
    <message>
        <source>none of the documents of this block asks for it</source>
        <translation>kein Dokument dieses Blocks braucht es</translation>
    </message>
    <message>
        <source>%1 is no sensible value for %2</source>
        <translation>%1 ist kein sinnvoller Wert für %2</translation>
    </message>
    <message>
        <source>%1 counts as %2 for %3</source>
        <translation>%1 gilt als %2 für %3</translation>
    </message>
    <message>
        <source>Kitchen ticket</source>
        <translation>Küchenbon</translation>
    </message>
    <message>
        <source>Bill</source>
        <translation>Zwischenrechnung</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Beleg</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>Delivery note</source>
        <translation>Lieferschein</translation>
    </message>
    <message>
        <source>Fiscal receipt</source>
        <translation>Fiskalbeleg</translation>
    </message>
    <message>
        <source>Empty document</source>
        <translation>Leeres Dokument</translation>
    </message>
    <message>
        <source>Summary receipt</source>
        <translation>Sammelbeleg</translation>
    </message>
    <message>
        <source>Summary invoice</source>
        <translation>Sammelrechnung</translation>
    </message>
    <message>
        <source>Summary fiscal receipt</source>
        <translation>Fiskaler Sammelbeleg</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>List of items sold</source>
        <translation>Verkaufte Artikel</translation>
    </message>
    <message>
        <source>Statement of account</source>
        <translation>Kontoauszug</translation>
    </message>
    <message>
        <source>characters of the quantity column</source>
        <translation>Zeichen der Mengenspalte</translation>
    </message>
    <message>
        <source>characters of the unit price column, and of the amount in a statement of account</source>
        <translation>Zeichen der Spalte für den Einzelpreis, und des Betrags in einem Kontoauszug</translation>
    </message>
    <message>
        <source>characters of the line total column</source>
        <translation>Zeichen der Spalte für den Betrag der Zeile</translation>
    </message>
    <message>
        <source>characters of a line</source>
        <translation>Zeichen einer Zeile</translation>
    </message>
    <message>
        <source>rows of a page; a receipt printer fills up the last one</source>
        <translation>Zeilen einer Seite; ein Bondrucker füllt die letzte auf</translation>
    </message>
    <message>
        <source>no effect: each document has its own layout</source>
        <translation>keine Wirkung: Jedes Dokument hat seine eigene Anordnung</translation>
    </message>
    <message>
        <source>print the top margin</source>
        <translation>druckt den oberen Rand</translation>
    </message>
    <message>
        <source>print the free header lines</source>
        <translation>druckt die freien Kopfzeilen</translation>
    </message>
    <message>
        <source>print the logo, on a receipt printer</source>
        <translation>druckt das Logo, auf einem Bondrucker</translation>
    </message>
    <message>
        <source>print the company&apos;s lines</source>
        <translation>druckt die Zeilen der Firma</translation>
    </message>
    <message>
        <source>print the delivery address, with printCustomer</source>
        <translation>druckt die Lieferadresse, mit printCustomer</translation>
    </message>
    <message>
        <source>print the billing address, with printCustomer</source>
        <translation>druckt die Rechnungsadresse, mit printCustomer</translation>
    </message>
    <message>
        <source>print the customer&apos;s telephone, with printCustomer</source>
        <translation>druckt das Telefon des Kunden, mit printCustomer</translation>
    </message>
    <message>
        <source>print the order&apos;s date</source>
        <translation>druckt das Datum der Bestellung</translation>
    </message>
    <message>
        <source>print the order&apos;s time</source>
        <translation>druckt die Uhrzeit der Bestellung</translation>
    </message>
    <message>
        <source>print the order&apos;s table</source>
        <translation>druckt den Tisch der Bestellung</translation>
    </message>
    <message>
        <source>print the customer block</source>
        <translation>druckt den Kundenblock</translation>
    </message>
    <message>
        <source>print the customer&apos;s license number, with printCustomer</source>
        <translation>druckt die USt-IdNr. des Kunden, mit printCustomer</translation>
    </message>
    <message>
        <source>print the customer&apos;s fiscal code, with printCustomer</source>
        <translation>druckt die Steuernummer des Kunden, mit printCustomer</translation>
    </message>
    <message>
        <source>print the order&apos;s credit</source>
        <translation>druckt das Guthaben zur Bestellung</translation>
    </message>
    <message>
        <source>print the order&apos;s waiter</source>
        <translation>druckt, wer die Bestellung aufgenommen hat</translation>
    </message>
    <message>
        <source>print the order&apos;s note</source>
        <translation>druckt die Bemerkung der Bestellung</translation>
    </message>
    <message>
        <source>open the drawer of a receipt printer, once before the first receipt</source>
        <translation>öffnet die Lade eines Bondruckers, einmal vor dem ersten Beleg</translation>
    </message>
    <message>
        <source>empty lines on top, with printGeometry</source>
        <translation>leere Zeilen oben, mit printGeometry</translation>
    </message>
    <message>
        <source>characters of an item&apos;s name that go to the register</source>
        <translation>Zeichen des Artikelnamens, die an die Kasse gehen</translation>
    </message>
    <message>
        <source>number of copies that a receipt printer prints, 99 at most</source>
        <translation>Anzahl der Exemplare, die ein Bondrucker druckt, höchstens 99</translation>
    </message>
    <message>
        <source>directory of the translation files</source>
        <translation>Ordner der Übersetzungsdateien</translation>
    </message>
    <message>
        <source>translation file, joined to basedir without a separator; &quot;/&quot; stands for /palvestrin_ and the locale&apos;s name</source>
        <translation>Übersetzungsdatei, ohne Trennzeichen an basedir gehängt; „/“ steht für /palvestrin_ und den Namen der Sprache</translation>
    </message>
    <message>
        <source>least level written: DEBUG, INFO, WARNING, ERROR or FATAL, in any case</source>
        <translation>niedrigste Stufe, die geschrieben wird: DEBUG, INFO, WARNING, ERROR oder FATAL, groß oder klein</translation>
    </message>
    <message>
        <source>directory of the log file</source>
        <translation>Ordner der Protokolldatei</translation>
    </message>
    <message>
        <source>name of the log file</source>
        <translation>Name der Protokolldatei</translation>
    </message>
    <message>
        <source>APPEND to the log file or OVERWRITE it, in any case</source>
        <translation>APPEND hängt an die Protokolldatei an, OVERWRITE überschreibt sie, groß oder klein</translation>
    </message>
    <message>
        <source>database name</source>
        <translation>Name der Datenbank</translation>
    </message>
    <message>
        <source>database user</source>
        <translation>Benutzer der Datenbank</translation>
    </message>
    <message>
        <source>database password</source>
        <translation>Passwort der Datenbank</translation>
    </message>
    <message>
        <source>database host</source>
        <translation>Server der Datenbank</translation>
    </message>
    <message>
        <source>directory of the application&apos;s programs; a &quot;/&quot; and the name follow</source>
        <translation>Ordner der Programme der Anwendung; „/“ und der Name folgen</translation>
    </message>
    <message>
        <source>picture file (PBM) that a receipt printer prints for the logo</source>
        <translation>Bilddatei (PBM), die ein Bondrucker als Logo druckt</translation>
    </message>
    <message>
        <source>no translation: English labels</source>
        <translation>keine Übersetzung: englische Beschriftungen</translation>
    </message>
    <message>
        <source>the root directory</source>
        <translation>das Wurzelverzeichnis</translation>
    </message>
    <message>
        <source>no file can be opened: no log</source>
        <translation>keine Datei lässt sich öffnen: kein Protokoll</translation>
    </message>
    <message>
        <source>no log</source>
        <translation>kein Protokoll</translation>
    </message>
    <message>
        <source>the picture in the printer&apos;s own memory</source>
        <translation>das Bild im Speicher des Druckers</translation>
    </message>
    <message>
        <source>32, the printer&apos;s own width; the same for 0</source>
        <translation>32, die Breite des Druckers; ebenso bei 0</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>start-up</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>logger</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>utilities</source>
        <translation>Hilfen</translation>
    </message>
    <message>
        <source>receipt printer</source>
        <translation>Bondrucker</translation>
    </message>
    <message>
        <source>character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>Exemplar</translation>
    </message>
    <message>
        <source>row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>the program %1 is not installed; install the package %2</source>
        <translation>das Programm %1 ist nicht installiert; installieren Sie das Paket %2</translation>
    </message>
    <message>
        <source>the text form has no room for &apos;;&apos; and &apos;&quot;&apos;, characters outside Latin-1, and more than 2044 bytes</source>
        <translation>die Textform kann „;“ und „&quot;“, Zeichen außerhalb von Latin-1 und mehr als 2044 Bytes nicht aufnehmen</translation>
    </message>
    <message>
        <source>the XML form has no room for pairs outside the first block, names that are no XML names, and &apos;&quot;&apos;, &apos;&lt;&apos;, &apos;&amp;&apos; and line breaks in values</source>
        <translation>die XML-Form kann Paare außerhalb des ersten Blocks, Namen, die keine XML-Namen sind, und „&quot;“, „&lt;“, „&amp;“ und Zeilenumbrüche in Werten nicht aufnehmen</translation>
    </message>
    <message>
        <source>it is no regular file; give one</source>
        <translation>das ist keine gewöhnliche Datei; geben Sie eine an</translation>
    </message>
    <message>
        <source>nothing is found in an XML file that begins with a declaration or a remark; remove what stands before the first element</source>
        <translation>in einer XML-Datei, die mit einer Deklaration oder einem Kommentar beginnt, wird nichts gefunden; entfernen Sie, was vor dem ersten Element steht</translation>
    </message>
    <message>
        <source>elements nest deeper than %1</source>
        <translation>Elemente sind tiefer als %1 verschachtelt</translation>
    </message>
    <message>
        <source>%1; nothing is found in XML that is not well-formed</source>
        <translation>%1; in fehlerhaftem XML wird nichts gefunden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; would not survive: %2</source>
        <translation>„%1“ ginge verloren: %2</translation>
    </message>
    <message>
        <source>the link leads to no file; mend or remove it</source>
        <translation>die Verknüpfung führt zu keiner Datei; berichtigen oder entfernen Sie sie</translation>
    </message>
    <message>
        <source>the file may not be written</source>
        <translation>die Datei darf nicht geschrieben werden</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>der Ordner lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>another program is writing this file; try again when it is done</source>
        <translation>ein anderes Programm schreibt gerade diese Datei; versuchen Sie es noch einmal, wenn es fertig ist</translation>
    </message>
    <message>
        <source>%1 cannot be opened (%2)</source>
        <translation>%1 lässt sich nicht öffnen (%2)</translation>
    </message>
    <message>
        <source>it cannot be locked (%1)</source>
        <translation>sie lässt sich nicht sperren (%1)</translation>
    </message>
    <message>
        <source>it belongs to another user or group, and would not any more; do this as its owner</source>
        <translation>sie gehört einem anderen Benutzer oder einer anderen Gruppe, und danach nicht mehr; tun Sie es als ihr Eigentümer</translation>
    </message>
    <message>
        <source>%1; the file is unchanged</source>
        <translation>%1; die Datei ist unverändert</translation>
    </message>
    <message>
        <source>%1 between a block&apos;s name and its brace</source>
        <translation>%1 zwischen dem Namen eines Blocks und seiner Klammer</translation>
    </message>
    <message>
        <source>%1, which belongs to no setting</source>
        <translation>%1, was zu keiner Einstellung gehört</translation>
    </message>
    <message>
        <source>%1 between a closing brace and the next &quot;;&quot; (is one missing?)</source>
        <translation>%1 zwischen einer schließenden Klammer und dem nächsten „;“ (fehlt eines?)</translation>
    </message>
    <message>
        <source>block %1 without a brace</source>
        <translation>Block %1 ohne Klammer</translation>
    </message>
    <message>
        <source>the end of %1: a name has room for %2 bytes, blanks in front included</source>
        <translation>das Ende von %1: Ein Name hat Platz für %2 Bytes, Leerzeichen davor eingeschlossen</translation>
    </message>
    <message>
        <source>blocks nested deeper than %1, and everything behind</source>
        <translation>Blöcke, die tiefer als %1 verschachtelt sind, und alles dahinter</translation>
    </message>
    <message>
        <source>block %1: only the first top-level block is read and written</source>
        <translation>Block %1: Nur der erste äußere Block wird gelesen und geschrieben</translation>
    </message>
    <message>
        <source>empty block %1</source>
        <translation>leerer Block %1</translation>
    </message>
    <message>
        <source>this value of %1: line %2 gives another</source>
        <translation>dieser Wert von %1: Zeile %2 gibt einen anderen</translation>
    </message>
    <message>
        <source>the quotes inside the value of %1 (is a &quot;;&quot; missing?)</source>
        <translation>die Anführungszeichen im Wert von %1 (fehlt ein „;“?)</translation>
    </message>
    <message>
        <source>the end of the value of %1: a value has room for %2 bytes</source>
        <translation>das Ende des Werts von %1: Ein Wert hat Platz für %2 Bytes</translation>
    </message>
    <message>
        <source>everything behind this brace, which closes no block</source>
        <translation>alles hinter dieser Klammer, die keinen Block schließt</translation>
    </message>
    <message>
        <source>the remark &quot;%1&quot;</source>
        <translation>der Kommentar „%1“</translation>
    </message>
    <message>
        <source>the text &quot;%1&quot;</source>
        <translation>der Text „%1“</translation>
    </message>
    <message>
        <source>the processing instruction &quot;%1&quot;</source>
        <translation>die Verarbeitungsanweisung „%1“</translation>
    </message>
    <message>
        <source>the document type</source>
        <translation>der Dokumenttyp</translation>
    </message>
    <message>
        <source>the entity &quot;%1&quot;</source>
        <translation>die Entität „%1“</translation>
    </message>
    <message>
        <source>the XML declaration</source>
        <translation>die XML-Deklaration</translation>
    </message>
    <message>
        <source>this is no configuration but %1</source>
        <translation>das ist keine Konfiguration, sondern %1</translation>
    </message>
    <message>
        <source>&quot;palvestrin config set&quot; begins a new file</source>
        <translation>„palvestrin config set“ beginnt eine neue Datei</translation>
    </message>
    <message>
        <source>XML, and the programs read this file as text</source>
        <translation>XML, und die Programme lesen diese Datei als Text</translation>
    </message>
    <message>
        <source>&quot;palvestrin config convert&quot; makes it text</source>
        <translation>„palvestrin config convert“ macht Text daraus</translation>
    </message>
    <message>
        <source>belongs to no setting and is dropped</source>
        <translation>gehört zu keiner Einstellung und wird verworfen</translation>
    </message>
    <message>
        <source>the block %1 has no &quot;{&quot;: everything behind its name is dropped</source>
        <translation>der Block %1 hat kein „{“: Alles hinter seinem Namen wird verworfen</translation>
    </message>
    <message>
        <source>put a &quot;{&quot; behind its name and the &quot;:&quot;</source>
        <translation>setzen Sie ein „{“ hinter den Namen und den „:“</translation>
    </message>
    <message>
        <source>the block %1 is never closed</source>
        <translation>der Block %1 wird nie geschlossen</translation>
    </message>
    <message>
        <source>put &quot;};&quot; where it ends</source>
        <translation>setzen Sie „};“ an sein Ende</translation>
    </message>
    <message>
        <source>stands between a block&apos;s name and its &quot;{&quot; and is dropped</source>
        <translation>steht zwischen dem Namen eines Blocks und seinem „{“ und wird verworfen</translation>
    </message>
    <message>
        <source>%1 is lost: the &quot;:&quot; of the remark in line %2 drops everything up to the next &quot;{&quot;</source>
        <translation>%1 geht verloren: Der „:“ des Kommentars in Zeile %2 verwirft alles bis zum nächsten „{“</translation>
    </message>
    <message>
        <source>take the remark out; this form of file has no remarks</source>
        <translation>nehmen Sie den Kommentar heraus; diese Art von Datei kennt keine Kommentare</translation>
    </message>
    <message>
        <source>%1 is lost: the block %2 in line %3 has no &quot;{&quot; of its own</source>
        <translation>%1 geht verloren: Der Block %2 in Zeile %3 hat kein eigenes „{“</translation>
    </message>
    <message>
        <source>put a &quot;{&quot; behind the &quot;:&quot; of that block</source>
        <translation>setzen Sie ein „{“ hinter den „:“ dieses Blocks</translation>
    </message>
    <message>
        <source>a block</source>
        <translation>ein Block</translation>
    </message>
    <message>
        <source>this remark is read as %1 of an odd name, which nobody looks for</source>
        <translation>dieser Kommentar wird als %1 mit einem seltsamen Namen gelesen, nach dem niemand sucht</translation>
    </message>
    <message>
        <source>this form of file has no remarks</source>
        <translation>diese Art von Datei kennt keine Kommentare</translation>
    </message>
    <message>
        <source>a setting</source>
        <translation>eine Einstellung</translation>
    </message>
    <message>
        <source>the &quot;}&quot; in the remark %1 ends the block here</source>
        <translation>die „}“ im Kommentar %1 beendet hier den Block</translation>
    </message>
    <message>
        <source>take it out, or put in the &quot;=&quot; or &quot;;&quot; that it lacks</source>
        <translation>nehmen Sie es heraus, oder ergänzen Sie das fehlende „=“ oder „;“</translation>
    </message>
    <message>
        <source>%1 is skipped: the &quot;;&quot; behind the &quot;}&quot; in line %2 is missing</source>
        <translation>%1 wird übersprungen: Das „;“ hinter der „}“ in Zeile %2 fehlt</translation>
    </message>
    <message>
        <source>put a &quot;;&quot; behind that brace</source>
        <translation>setzen Sie ein „;“ hinter diese Klammer</translation>
    </message>
    <message>
        <source>nothing from here on is read: the &quot;}&quot; in line %1 closes no block</source>
        <translation>ab hier wird nichts gelesen: Die „}“ in Zeile %1 schließt keinen Block</translation>
    </message>
    <message>
        <source>nothing from here on is read: blocks nest deeper than %1</source>
        <translation>ab hier wird nichts gelesen: Blöcke sind tiefer als %1 verschachtelt</translation>
    </message>
    <message>
        <source>take that brace out</source>
        <translation>nehmen Sie diese Klammer heraus</translation>
    </message>
    <message>
        <source>nothing of this file is read: %1</source>
        <translation>von dieser Datei wird nichts gelesen: %1</translation>
    </message>
    <message>
        <source>nothing is found in an XML configuration that begins with a declaration or a remark</source>
        <translation>in einer XML-Konfiguration, die mit einer Deklaration oder einem Kommentar beginnt, wird nichts gefunden</translation>
    </message>
    <message>
        <source>take out what stands in front of the first element</source>
        <translation>nehmen Sie heraus, was vor dem ersten Element steht</translation>
    </message>
    <message>
        <source>%1 is text between elements, which sets nothing</source>
        <translation>%1 ist Text zwischen Elementen, der nichts einstellt</translation>
    </message>
    <message>
        <source>settings are attributes</source>
        <translation>Einstellungen sind Attribute</translation>
    </message>
    <message>
        <source>a file of more than 1 MiB</source>
        <translation>eine Datei von mehr als 1 MiB</translation>
    </message>
    <message>
        <source>a binary file, or text in UTF-16</source>
        <translation>eine Binärdatei, oder Text in UTF-16</translation>
    </message>
    <message>
        <source>XML with more than 1000 attributes in an element</source>
        <translation>XML mit mehr als 1000 Attributen in einem Element</translation>
    </message>
    <message>
        <source>an INI file</source>
        <translation>eine INI-Datei</translation>
    </message>
    <message>
        <source>text without a block &quot;palvestrin: {&quot;</source>
        <translation>Text ohne einen Block „palvestrin: {“</translation>
    </message>
    <message>
        <source>the value of %1 is UTF-8, and is read as Latin-1: %2</source>
        <translation>der Wert von %1 ist UTF-8 und wird als Latin-1 gelesen: %2</translation>
    </message>
    <message>
        <source>save the file as Latin-1, or use &quot;palvestrin config set&quot;</source>
        <translation>speichern Sie die Datei als Latin-1, oder nehmen Sie „palvestrin config set“</translation>
    </message>
    <message>
        <source>%1 is read as part of the value of %2, whose &quot;;&quot; is missing</source>
        <translation>%1 wird als Teil des Werts von %2 gelesen, dessen „;“ fehlt</translation>
    </message>
    <message>
        <source>put a &quot;;&quot; behind that value</source>
        <translation>setzen Sie ein „;“ hinter diesen Wert</translation>
    </message>
    <message>
        <source>%1 is read as part of the remark in line %2, which goes on up to the next &quot;;&quot;</source>
        <translation>%1 wird als Teil des Kommentars in Zeile %2 gelesen, der bis zum nächsten „;“ reicht</translation>
    </message>
    <message>
        <source>the value of %1 has %2 bytes and is cut to %3</source>
        <translation>der Wert von %1 hat %2 Bytes und wird auf %3 gekürzt</translation>
    </message>
    <message>
        <source>is a &quot;;&quot; missing in it?</source>
        <translation>fehlt darin ein „;“?</translation>
    </message>
    <message>
        <source>a quote inside the value of %1 vanishes: it is read as %2</source>
        <translation>ein Anführungszeichen im Wert von %1 verschwindet: Gelesen wird %2</translation>
    </message>
    <message>
        <source>quotes stand around a value or nowhere</source>
        <translation>Anführungszeichen stehen um einen Wert herum oder gar nicht</translation>
    </message>
    <message>
        <source>did you mean &quot;%1&quot;?</source>
        <translation>meinten Sie „%1“?</translation>
    </message>
    <message>
        <source>Existing log</source>
        <translation>Vorhandenes Protokoll</translation>
    </message>
    <message>
        <source>receipt printer, copy number</source>
        <translation>Bondrucker, Anzahl der Exemplare</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>never found: only the first top-level block is searched</source>
        <translation>nie gefunden: Gesucht wird nur im ersten Block der Datei</translation>
    </message>
    <message>
        <source>no program reads this</source>
        <translation>kein Programm liest das</translation>
    </message>
    <message>
        <source>no program reads this; did you mean %1?</source>
        <translation>kein Programm liest das; meinten Sie %1?</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>It would never be found: the first block of the file is another.</source>
        <translation>Sie würde nie gefunden: Der erste Block der Datei ist ein anderer.</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Reload the file</source>
        <translation>Datei &amp;neu laden</translation>
    </message>
    <message>
        <source>Show a &amp;job of your own…</source>
        <translation>Eigenen &amp;Auftrag zeigen…</translation>
    </message>
    <message>
        <source>Save the &amp;paper as a picture…</source>
        <translation>&amp;Papier als Bild speichern…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Copy the paper as text</source>
        <translation>Papier als Text &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Find a setting</source>
        <translation>Einstellung &amp;suchen</translation>
    </message>
    <message>
        <source>Reset the &amp;setting</source>
        <translation>Einstellung &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Larger paper</source>
        <translation>Papier &amp;größer</translation>
    </message>
    <message>
        <source>&amp;Smaller paper</source>
        <translation>Papier &amp;kleiner</translation>
    </message>
    <message>
        <source>&amp;Fit the paper</source>
        <translation>Papier &amp;anpassen</translation>
    </message>
    <message>
        <source>Go to the &amp;documents</source>
        <translation>Zu den &amp;Dokumenten</translation>
    </message>
    <message>
        <source>&amp;All keys</source>
        <translation>A&amp;lle Schlüssel</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;How it works</source>
        <translation>&amp;So geht es</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Begin with a preset</source>
        <translation>Mit einer Vorlage beginnen</translation>
    </message>
    <message>
        <source>%1[*] – Palvestrin Print</source>
        <translation>%1[*] – Palvestrin Print</translation>
    </message>
    <message>
        <source>About Palvestrin Print</source>
        <translation>Über Palvestrin Print</translation>
    </message>
    <message>
        <source>&lt;b&gt;Palvestrin Print %1&lt;/b&gt;&lt;p&gt;Tickets, receipts and invoices of a restaurant or a shop, on the paper of its printers.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Palvestrin Print %1&lt;/b&gt;&lt;p&gt;Bons, Belege und Rechnungen eines Restaurants oder Ladens, auf dem Papier seiner Drucker.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>ValueEditor</name>
    <message>
        <source>Default: %1</source>
        <translation>Standard: %1</translation>
    </message>
    <message>
        <source>Choose a folder…</source>
        <translation>Ordner wählen…</translation>
    </message>
    <message>
        <source>Choose a file…</source>
        <translation>Datei wählen…</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Passwort zeigen</translation>
    </message>
</context>
</TS>
