<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>ActionSummary</name>
    <message numerus="yes">
        <source>Moved %Ln file(s) to the Trash (%1 is freed when the Trash is emptied)</source>
        <translation>
            <numerusform>%Ln Datei in den Papierkorb verschoben (%1 werden frei, wenn der Papierkorb geleert wird)</numerusform>
            <numerusform>%Ln Dateien in den Papierkorb verschoben (%1 werden frei, wenn der Papierkorb geleert wird)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %Ln file(s)</source>
        <translation>
            <numerusform>%Ln Datei gelöscht</numerusform>
            <numerusform>%Ln Dateien gelöscht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Replaced %Ln file(s) by links or clones</source>
        <translation>
            <numerusform>%Ln Datei durch einen Link oder Klon ersetzt</numerusform>
            <numerusform>%Ln Dateien durch Links oder Klone ersetzt</numerusform>
        </translation>
    </message>
    <message>
        <source> — %1 freed</source>
        <translation> – %1 frei geworden</translation>
    </message>
    <message numerus="yes">
        <source>Put back %Ln file(s) from the Trash.</source>
        <translation>
            <numerusform>%Ln Datei aus dem Papierkorb wiederhergestellt.</numerusform>
            <numerusform>%Ln Dateien aus dem Papierkorb wiederhergestellt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Replaced %Ln file(s) by clones — %1 freed.</source>
        <translation>
            <numerusform>%Ln Datei durch einen Klon ersetzt – %1 frei geworden.</numerusform>
            <numerusform>%Ln Dateien durch Klone ersetzt – %1 frei geworden.</numerusform>
        </translation>
    </message>
    <message>
        <source>in Trash</source>
        <translation>im Papierkorb</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>gelöscht</translation>
    </message>
    <message>
        <source>replaced by link</source>
        <translation>durch Link ersetzt</translation>
    </message>
    <message>
        <source>replaced by hard link</source>
        <translation>durch harten Link ersetzt</translation>
    </message>
    <message>
        <source>replaced by clone</source>
        <translation>durch Klon ersetzt</translation>
    </message>
</context>
<context>
    <name>AttributeCatalogue</name>
    <message>
        <source>File size</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>Size of the file in bytes</source>
        <translation>Größe der Datei in Bytes</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Name of the file on disk</source>
        <translation>Name der Datei auf dem Datenträger</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Anzeigename</translation>
    </message>
    <message>
        <source>Name of the item as it is displayed</source>
        <translation>Name des Objekts, wie er angezeigt wird</translation>
    </message>
    <message>
        <source>File created</source>
        <translation>Datei erstellt</translation>
    </message>
    <message>
        <source>Date when the file was created, where the file system records it</source>
        <translation>Datum, an dem die Datei erstellt wurde, sofern das Dateisystem es festhält</translation>
    </message>
    <message>
        <source>File modified</source>
        <translation>Datei geändert</translation>
    </message>
    <message>
        <source>Date when the file&apos;s content last changed on disk</source>
        <translation>Datum, an dem sich der Inhalt der Datei auf dem Datenträger zuletzt geändert hat</translation>
    </message>
    <message>
        <source>Content modified</source>
        <translation>Inhalt geändert</translation>
    </message>
    <message>
        <source>Date when the item&apos;s content was last modified</source>
        <translation>Datum, an dem der Inhalt des Objekts zuletzt geändert wurde</translation>
    </message>
    <message>
        <source>Content type</source>
        <translation>Inhaltstyp</translation>
    </message>
    <message>
        <source>Type of the item&apos;s content, as a MIME type</source>
        <translation>Typ des Inhalts des Objekts, als MIME-Typ</translation>
    </message>
    <message>
        <source>Content type tree</source>
        <translation>Inhaltstyp-Hierarchie</translation>
    </message>
    <message>
        <source>Type of the item&apos;s content and the types it derives from</source>
        <translation>Typ des Inhalts des Objekts und die Typen, von denen er abgeleitet ist</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Description of the kind of item</source>
        <translation>Beschreibung der Art des Objekts</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Tags that the user gave the item</source>
        <translation>Tags, die der Benutzer dem Objekt gegeben hat</translation>
    </message>
    <message>
        <source>Where from</source>
        <translation>Herkunft</translation>
    </message>
    <message>
        <source>Addresses the item was downloaded from</source>
        <translation>Adressen, von denen das Objekt heruntergeladen wurde</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Duration of the audio or video, in seconds</source>
        <translation>Dauer der Audio- oder Videoaufnahme, in Sekunden</translation>
    </message>
    <message>
        <source>Total bit rate</source>
        <translation>Gesamtbitrate</translation>
    </message>
    <message>
        <source>Bit rate of all audio and video streams together, in bits per second</source>
        <translation>Bitrate aller Audio- und Videospuren zusammen, in Bit pro Sekunde</translation>
    </message>
    <message>
        <source>Codecs</source>
        <translation>Codecs</translation>
    </message>
    <message>
        <source>Codecs of the audio and video streams</source>
        <translation>Codecs der Audio- und Videospuren</translation>
    </message>
    <message>
        <source>Audio bit rate</source>
        <translation>Audio-Bitrate</translation>
    </message>
    <message>
        <source>Bit rate of the audio, in bits per second</source>
        <translation>Bitrate der Audiospur, in Bit pro Sekunde</translation>
    </message>
    <message>
        <source>Video bit rate</source>
        <translation>Video-Bitrate</translation>
    </message>
    <message>
        <source>Bit rate of the video, in bits per second</source>
        <translation>Bitrate des Videos, in Bit pro Sekunde</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Sample rate of the audio, in samples per second</source>
        <translation>Abtastrate der Audiospur, in Abtastwerten pro Sekunde</translation>
    </message>
    <message>
        <source>Audio channels</source>
        <translation>Audiokanäle</translation>
    </message>
    <message>
        <source>Number of audio channels</source>
        <translation>Anzahl der Audiokanäle</translation>
    </message>
    <message>
        <source>Pixel width</source>
        <translation>Breite in Pixeln</translation>
    </message>
    <message>
        <source>Width of the image or video, in pixels</source>
        <translation>Breite des Bildes oder Videos, in Pixeln</translation>
    </message>
    <message>
        <source>Pixel height</source>
        <translation>Höhe in Pixeln</translation>
    </message>
    <message>
        <source>Height of the image or video, in pixels</source>
        <translation>Höhe des Bildes oder Videos, in Pixeln</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title of the item</source>
        <translation>Titel des Objekts</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Album that the recording belongs to</source>
        <translation>Album, zu dem die Aufnahme gehört</translation>
    </message>
    <message>
        <source>Authors</source>
        <translation>Autoren</translation>
    </message>
    <message>
        <source>Authors, artists or performers of the item</source>
        <translation>Autoren, Künstler oder Interpreten des Objekts</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Komponist</translation>
    </message>
    <message>
        <source>Composer of the music</source>
        <translation>Komponist der Musik</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Musical genre of the recording</source>
        <translation>Musikgenre der Aufnahme</translation>
    </message>
    <message>
        <source>Year recorded</source>
        <translation>Aufnahmejahr</translation>
    </message>
    <message>
        <source>Year when the recording was made</source>
        <translation>Jahr, in dem die Aufnahme entstand</translation>
    </message>
    <message>
        <source>Recording date</source>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Date when the recording was made</source>
        <translation>Datum, an dem die Aufnahme entstand</translation>
    </message>
    <message>
        <source>Content created</source>
        <translation>Inhalt erstellt</translation>
    </message>
    <message>
        <source>Date when the content was created: when a photo was taken or a video recorded</source>
        <translation>Datum, an dem der Inhalt entstand: wann ein Foto aufgenommen oder ein Video gedreht wurde</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Titelnummer</translation>
    </message>
    <message>
        <source>Number of the track on its album</source>
        <translation>Nummer des Titels auf seinem Album</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breitengrad</translation>
    </message>
    <message>
        <source>Latitude where the item was made, in degrees (north positive)</source>
        <translation>Breitengrad des Orts, an dem das Objekt entstand, in Grad (Norden positiv)</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Längengrad</translation>
    </message>
    <message>
        <source>Longitude where the item was made, in degrees (east positive)</source>
        <translation>Längengrad des Orts, an dem das Objekt entstand, in Grad (Osten positiv)</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Meereshöhe</translation>
    </message>
    <message>
        <source>Altitude where the item was made, in metres above sea level</source>
        <translation>Höhe des Orts, an dem das Objekt entstand, in Metern über dem Meeresspiegel</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Orientation of the image as displayed: 0 landscape, 1 portrait</source>
        <translation>Ausrichtung des Bildes in der Anzeige: 0 Querformat, 1 Hochformat</translation>
    </message>
    <message>
        <source>Device make</source>
        <translation>Gerätehersteller</translation>
    </message>
    <message>
        <source>Manufacturer of the camera or device that made the item</source>
        <translation>Hersteller der Kamera oder des Geräts, mit dem das Objekt entstand</translation>
    </message>
    <message>
        <source>Device model</source>
        <translation>Gerätemodell</translation>
    </message>
    <message>
        <source>Model of the camera or device that made the item</source>
        <translation>Modell der Kamera oder des Geräts, mit dem das Objekt entstand</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>Belichtungszeit</translation>
    </message>
    <message>
        <source>Exposure time of the photo, in seconds</source>
        <translation>Belichtungszeit des Fotos, in Sekunden</translation>
    </message>
    <message>
        <source>F number</source>
        <translation>Blendenzahl</translation>
    </message>
    <message>
        <source>Aperture of the lens as an f-number</source>
        <translation>Blende des Objektivs als Blendenzahl</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>Focal length of the lens, in millimetres</source>
        <translation>Brennweite des Objektivs, in Millimetern</translation>
    </message>
    <message>
        <source>ISO speed</source>
        <translation>ISO-Empfindlichkeit</translation>
    </message>
    <message>
        <source>ISO speed of the photo</source>
        <translation>ISO-Empfindlichkeit des Fotos</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Blitz</translation>
    </message>
    <message>
        <source>Whether the flash fired</source>
        <translation>Ob der Blitz ausgelöst hat</translation>
    </message>
    <message>
        <source>Lens model</source>
        <translation>Objektivmodell</translation>
    </message>
    <message>
        <source>Model of the lens</source>
        <translation>Modell des Objektivs</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Description of the item&apos;s content</source>
        <translation>Beschreibung des Inhalts des Objekts</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Überschrift</translation>
    </message>
    <message>
        <source>Short summary of the item&apos;s content</source>
        <translation>Kurze Zusammenfassung des Inhalts des Objekts</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Keywords that describe the item</source>
        <translation>Stichwörter, die das Objekt beschreiben</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Copyright notice of the item</source>
        <translation>Urheberrechtsvermerk des Objekts</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Ersteller</translation>
    </message>
    <message>
        <source>Application that created the content</source>
        <translation>Programm, das den Inhalt erstellt hat</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Identifier of the item, such as a photo&apos;s unique ID</source>
        <translation>Kennung des Objekts, etwa die eindeutige ID eines Fotos</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>Ursprüngliche Quelle</translation>
    </message>
    <message>
        <source>Original source of the content, such as the supplier of a photo</source>
        <translation>Ursprüngliche Quelle des Inhalts, etwa der Lieferant eines Fotos</translation>
    </message>
</context>
<context>
    <name>AttributeTolerance</name>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>30&#xa0;m</source>
        <translation>30&#xa0;m</translation>
    </message>
    <message>
        <source>arcseconds (1″ ≈ %1)</source>
        <translation>Bogensekunden (1″ ≈ %1)</translation>
    </message>
    <message>
        <source>arcseconds (1″ ≈ %1 on the equator)</source>
        <translation>Bogensekunden (1″ ≈ %1 am Äquator)</translation>
    </message>
    <message>
        <source>100&#xa0;ft</source>
        <translation>100&#xa0;ft</translation>
    </message>
</context>
<context>
    <name>AudioFingerprinter</name>
    <message>
        <source>Out of memory.</source>
        <translation>Nicht genügend Speicher.</translation>
    </message>
    <message>
        <source>The file is not a recording that can be read.</source>
        <translation>Die Datei ist keine lesbare Aufnahme.</translation>
    </message>
    <message>
        <source>The file holds no sound.</source>
        <translation>Die Datei enthält keinen Ton.</translation>
    </message>
    <message>
        <source>The sound cannot be decoded.</source>
        <translation>Der Ton kann nicht dekodiert werden.</translation>
    </message>
    <message>
        <source>Decoding the recording took too long.</source>
        <translation>Das Dekodieren der Aufnahme hat zu lange gedauert.</translation>
    </message>
    <message>
        <source>The recording is too short to compare.</source>
        <translation>Die Aufnahme ist zu kurz für einen Vergleich.</translation>
    </message>
</context>
<context>
    <name>AutomaticSelection</name>
    <message>
        <source>duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>file name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Warning: You may end up selecting documents that are completely unrelated and that only have the same %1</source>
        <translation>Warnung: Sie könnten Dokumente auswählen, die nichts miteinander zu tun haben und nur dasselbe Merkmal „%1“ teilen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>attribute</source>
        <translation>Attribut</translation>
    </message>
</context>
<context>
    <name>ByteSize</name>
    <message>
        <source>kB</source>
        <translation>kB</translation>
    </message>
    <message>
        <source>KiB</source>
        <translation>KiB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>MiB</source>
        <translation>MiB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>GiB</source>
        <translation>GiB</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>TB</translation>
    </message>
    <message>
        <source>TiB</source>
        <translation>TiB</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
</context>
<context>
    <name>CloneAlerts</name>
    <message>
        <source>Folder comparison was enabled</source>
        <translation>Der Ordnervergleich war eingeschaltet</translation>
    </message>
    <message>
        <source>You might clone more duplicate files if folder comparison is turned off in the initial search.

For example, a file that exists in a duplicate folder might also exist separately.</source>
        <translation>Sie könnten mehr doppelte Dateien klonen, wenn Sie den Ordnervergleich bei der Suche ausschalten.

Eine Datei in einem doppelten Ordner kann zum Beispiel auch einzeln vorhanden sein.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>No file among the selection can be cloned</source>
        <translation>Keine Datei der Auswahl kann geklont werden</translation>
    </message>
    <message>
        <source>The selection should contain at least two duplicate files.

The files should have write permission, they should not already be clones, and they should be on the same volume, on a file system that shares storage between files (Btrfs, XFS, bcachefs).</source>
        <translation>Die Auswahl sollte mindestens zwei doppelte Dateien enthalten.

Die Dateien müssen beschreibbar sein, dürfen noch keine Klone sein und müssen auf demselben Datenträger liegen, auf einem Dateisystem, das Speicher zwischen Dateien teilen kann (Btrfs, XFS, bcachefs).</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>a clone</source>
        <translation>einen Klon</translation>
    </message>
    <message>
        <source>clones</source>
        <translation>Klone</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 different files</source>
        <translation>%1 verschiedene Dateien</translation>
    </message>
    <message>
        <source>Do you want to replace %1, by %2 of %3? %4 on disk will be reclaimed.</source>
        <translation>Möchten Sie %1 durch %2 von %3 ersetzen? %4 Speicherplatz werden frei.</translation>
    </message>
    <message>
        <source>Creation and modification dates, tags, extended attributes, permissions and other metadata will be kept. Clones take no disk space of their own until their contents change.</source>
        <translation>Erstellungs- und Änderungsdatum, Schlagwörter, erweiterte Attribute, Zugriffsrechte und andere Metadaten bleiben erhalten. Klone belegen keinen eigenen Speicherplatz, bis sich ihr Inhalt ändert.</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Klonen</translation>
    </message>
    <message>
        <source>View Cloning Plan</source>
        <translation>Klonplan anzeigen</translation>
    </message>
    <message>
        <source>Warning: write-protected files</source>
        <translation>Warnung: schreibgeschützte Dateien</translation>
    </message>
    <message>
        <source>%1 files to be cloned are write-protected. As you own these files, you may bypass write-protection.

Do you want to clone them anyway?</source>
        <translation>%1 zu klonende Dateien sind schreibgeschützt. Da Sie der Besitzer dieser Dateien sind, können Sie den Schreibschutz umgehen.

Möchten Sie sie trotzdem klonen?</translation>
    </message>
    <message>
        <source>Skip Them</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Clone Them</source>
        <translation>Klonen</translation>
    </message>
    <message>
        <source>Warning: other file owner</source>
        <translation>Warnung: anderer Dateibesitzer</translation>
    </message>
    <message>
        <source>%1 files are owned by another user account. File permissions allow you to modify them, but replacing them by clones will set you as the file owner.

Do you want to clone them anyway?</source>
        <translation>%1 Dateien gehören einem anderen Benutzerkonto. Die Zugriffsrechte erlauben Ihnen, sie zu ändern, aber wenn sie durch Klone ersetzt werden, werden Sie zum Besitzer der Dateien.

Möchten Sie sie trotzdem klonen?</translation>
    </message>
    <message>
        <source>Clone and Change Owner</source>
        <translation>Klonen und Besitzer ändern</translation>
    </message>
    <message>
        <source>Cloning files…</source>
        <translation>Dateien werden geklont …</translation>
    </message>
    <message>
        <source>Planning cloning…</source>
        <translation>Klonen wird geplant …</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abbrechen</translation>
    </message>
    <message numerus="yes">
        <source>%1 duplicate(s) among all found files</source>
        <translation>
            <numerusform>%1 Duplikat unter allen gefundenen Dateien</numerusform>
            <numerusform>%1 Duplikate unter allen gefundenen Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 duplicate(s) among the selected files</source>
        <translation>
            <numerusform>%1 Duplikat unter den ausgewählten Dateien</numerusform>
            <numerusform>%1 Duplikate unter den ausgewählten Dateien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CloneWorker</name>
    <message>
        <source>“%1” no longer has the content of “%2”</source>
        <translation>„%1“ hat nicht mehr den Inhalt von „%2“</translation>
    </message>
    <message>
        <source>The operations journal could not record the step: %1</source>
        <translation>Das Aktionsprotokoll konnte den Schritt nicht aufzeichnen: %1</translation>
    </message>
    <message>
        <source>“%1” could not be moved aside: %2</source>
        <translation>„%1“ konnte nicht beiseitegelegt werden: %2</translation>
    </message>
    <message>
        <source>“%1” could not be cloned from “%2”: %3</source>
        <translation>„%1“ konnte nicht aus „%2“ geklont werden: %3</translation>
    </message>
    <message>
        <source>The metadata of “%1” could not be carried over to its clone; it was left as it was</source>
        <translation>Die Metadaten von „%1“ konnten nicht auf den Klon übertragen werden; die Datei blieb unverändert</translation>
    </message>
    <message>
        <source>“%1” was cloned, but its former copy “%2” could not be removed: %3</source>
        <translation>„%1“ wurde geklont, aber die frühere Kopie „%2“ konnte nicht entfernt werden: %3</translation>
    </message>
</context>
<context>
    <name>DegreeMinuteSecondFormatter</name>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>E</source>
        <translation>O</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
</context>
<context>
    <name>DeleteActions</name>
    <message>
        <source>“%1” could not be removed: %2</source>
        <translation>„%1“ konnte nicht entfernt werden: %2</translation>
    </message>
    <message>
        <source>The operations journal could not record the step: %1</source>
        <translation>Das Aktionsprotokoll konnte den Schritt nicht aufzeichnen: %1</translation>
    </message>
    <message>
        <source>The replacement could not be made: %1</source>
        <translation>Der Ersatz konnte nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>The replacement could not be put in place: %1</source>
        <translation>Der Ersatz konnte nicht an seinen Platz gebracht werden: %1</translation>
    </message>
</context>
<context>
    <name>DeleteChecks</name>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Left alone because they changed since the search, or no unchanged copy of them remains:
%1</source>
        <translation>Unverändert gelassen, weil sie sich seit der Suche geändert haben oder keine unveränderte Kopie mehr von ihnen übrig ist:
%1</translation>
    </message>
    <message>
        <source>To replace deleted duplicates, select the reference file to preserve in the top list, and the duplicates to replace in the bottom list.</source>
        <translation>Um gelöschte Duplikate zu ersetzen, wählen Sie in der oberen Liste die zu behaltende Referenzdatei und in der unteren Liste die zu ersetzenden Duplikate.</translation>
    </message>
    <message>
        <source>No item is selected in the bottom list</source>
        <translation>In der unteren Liste ist nichts ausgewählt</translation>
    </message>
    <message>
        <source>Delete Without Replacing</source>
        <translation>Löschen ohne zu ersetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Please make sure that the same item is not selected both in the top and bottom lists</source>
        <translation>Bitte achten Sie darauf, dass nicht dasselbe Objekt in der oberen und der unteren Liste ausgewählt ist</translation>
    </message>
    <message>
        <source>Warning: you have selected ALL the dupes of at least one file</source>
        <translation>Warnung: Sie haben ALLE Duplikate mindestens einer Datei ausgewählt</translation>
    </message>
    <message>
        <source>You should probably keep one version of this file.</source>
        <translation>Sie sollten wohl eine Fassung dieser Datei behalten.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Trotzdem fortfahren</translation>
    </message>
    <message>
        <source>Clones may be unsupported on this volume</source>
        <translation>Klone werden auf diesem Datenträger möglicherweise nicht unterstützt</translation>
    </message>
    <message>
        <source>Only file systems that share storage between files, such as Btrfs, XFS or bcachefs, can make clones.</source>
        <translation>Nur Dateisysteme, die Speicher zwischen Dateien teilen können, etwa Btrfs, XFS oder bcachefs, können Klone erstellen.</translation>
    </message>
    <message>
        <source>Hard links, desktop links or symbolic links may be unsupported on this volume</source>
        <translation>Harte Links, Desktop-Verknüpfungen oder symbolische Links werden auf diesem Datenträger möglicherweise nicht unterstützt</translation>
    </message>
    <message>
        <source>Drives formatted as FAT, exFAT or NTFS, and network shares, may refuse links.</source>
        <translation>Mit FAT, exFAT oder NTFS formatierte Laufwerke und Netzwerkfreigaben lehnen Links möglicherweise ab.</translation>
    </message>
    <message>
        <source>“%1” in “%2”</source>
        <translation>„%1“ in „%2“</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>Creating a desktop link</source>
        <translation>Eine Desktop-Verknüpfung wird erstellt</translation>
    </message>
    <message>
        <source>Creating a symbolic link</source>
        <translation>Ein symbolischer Link wird erstellt</translation>
    </message>
    <message>
        <source>Creating a hard link</source>
        <translation>Ein harter Link wird erstellt</translation>
    </message>
    <message>
        <source>Note: hard links are only supported on the same volume.</source>
        <translation>Hinweis: Harte Links sind nur auf demselben Datenträger möglich.</translation>
    </message>
    <message>
        <source>Creating a clone</source>
        <translation>Ein Klon wird erstellt</translation>
    </message>
    <message>
        <source>Note: clones can only be made on the same volume, on a file system that shares storage between files (Btrfs, XFS, bcachefs).</source>
        <translation>Hinweis: Klone sind nur auf demselben Datenträger möglich, auf einem Dateisystem, das Speicher zwischen Dateien teilen kann (Btrfs, XFS, bcachefs).</translation>
    </message>
    <message>
        <source>%1 of %2 failed</source>
        <translation>%1 von %2 fehlgeschlagen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>“%1” could not be moved to the Trash.</source>
        <translation>„%1“ konnte nicht in den Papierkorb verschoben werden.</translation>
    </message>
    <message>
        <source>Delete Immediately…</source>
        <translation>Sofort löschen …</translation>
    </message>
    <message>
        <source>“%1” could not be deleted immediately.</source>
        <translation>„%1“ konnte nicht sofort gelöscht werden.</translation>
    </message>
    <message>
        <source>Delete Immediately</source>
        <translation>Sofort löschen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete “%1” immediately?</source>
        <translation>Möchten Sie „%1“ wirklich sofort löschen?</translation>
    </message>
    <message>
        <source>This item will be deleted immediately. You can’t undo this action.</source>
        <translation>Dieses Objekt wird sofort gelöscht. Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the %1 selected items immediately?</source>
        <translation>Möchten Sie die %1 ausgewählten Objekte wirklich sofort löschen?</translation>
    </message>
    <message>
        <source>%1 items will be deleted immediately. You can’t undo this action.</source>
        <translation>%1 Objekte werden sofort gelöscht. Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be moved to the Trash.</source>
        <translation>
            <numerusform>%Ln Datei konnte nicht in den Papierkorb verschoben werden.</numerusform>
            <numerusform>%Ln Dateien konnten nicht in den Papierkorb verschoben werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be deleted immediately.</source>
        <translation>
            <numerusform>%Ln Datei konnte nicht sofort gelöscht werden.</numerusform>
            <numerusform>%Ln Dateien konnten nicht sofort gelöscht werden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Dupes</name>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>Extra Large</source>
        <translation>Sehr groß</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>%1 bps</source>
        <translation>%1 bit/s</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 Mbps</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <source>selected</source>
        <translation>ausgewählt</translation>
    </message>
    <message>
        <source>hard link</source>
        <translation>harter Link</translation>
    </message>
    <message>
        <source>clone</source>
        <translation>Klon</translation>
    </message>
    <message>
        <source>other volume</source>
        <translation>anderer Datenträger</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>Duplikat</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>contained</source>
        <translation>enthalten</translation>
    </message>
    <message>
        <source>container</source>
        <translation>umfassend</translation>
    </message>
    <message>
        <source>holds its files</source>
        <translation>enthält seine Dateien</translation>
    </message>
    <message>
        <source>contained in it</source>
        <translation>darin enthalten</translation>
    </message>
</context>
<context>
    <name>DuplicateSearch</name>
    <message>
        <source>Looking for files of the same size… %1</source>
        <translation>Dateien gleicher Größe werden gesucht … %1</translation>
    </message>
    <message>
        <source>Step %1 of %2: </source>
        <translation>Schritt %1 von %2: </translation>
    </message>
    <message>
        <source>Enumerating files… %1</source>
        <translation>Dateien werden aufgezählt … %1</translation>
    </message>
    <message>
        <source>Sorting files…</source>
        <translation>Dateien werden sortiert …</translation>
    </message>
    <message>
        <source>Hashing folders…</source>
        <translation>Ordner werden gehasht …</translation>
    </message>
    <message>
        <source>Comparing file hashes…</source>
        <translation>Datei-Hashes werden verglichen …</translation>
    </message>
    <message>
        <source>Filtering out contents of duplicate folders…</source>
        <translation>Inhalte doppelter Ordner werden herausgefiltert …</translation>
    </message>
    <message>
        <source>Comparing files… %1</source>
        <translation>Dateien werden verglichen… %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 of %2, %3</source>
        <translation>%1 von %2, %3</translation>
    </message>
    <message>
        <source>Finding folders contained in others…</source>
        <translation>In anderen enthaltene Ordner werden gesucht …</translation>
    </message>
</context>
<context>
    <name>InterruptedActions</name>
    <message>
        <source>Files cannot be changed safely</source>
        <translation>Dateien können nicht sicher geändert werden</translation>
    </message>
    <message>
        <source>The operations journal %1 cannot be opened: %2</source>
        <translation>Das Aktionsprotokoll %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Put back as they were:
%1</source>
        <translation>Wieder in den vorigen Zustand gebracht:
%1</translation>
    </message>
    <message>
        <source>Finished:
%1</source>
        <translation>Abgeschlossen:
%1</translation>
    </message>
    <message>
        <source>Could not be recovered:
%1</source>
        <translation>Konnte nicht wiederhergestellt werden:
%1</translation>
    </message>
    <message>
        <source>Interrupted file actions were recovered</source>
        <translation>Unterbrochene Dateiaktionen wurden wiederhergestellt</translation>
    </message>
    <message>
        <source>Selfsame was stopped while it changed files. Nothing was lost.</source>
        <translation>Selfsame wurde beendet, während es Dateien änderte. Es ging nichts verloren.</translation>
    </message>
    <message>
        <source>Selfsame was stopped while it changed files.</source>
        <translation>Selfsame wurde beendet, während es Dateien änderte.</translation>
    </message>
</context>
<context>
    <name>ItemSafety</name>
    <message>
        <source>“%1” is gone: %2</source>
        <translation>„%1“ ist nicht mehr vorhanden: %2</translation>
    </message>
    <message>
        <source>“%1” is no longer the file the search found: another file stands at its path</source>
        <translation>„%1“ ist nicht mehr die Datei, die die Suche gefunden hat: An ihrem Pfad steht eine andere Datei</translation>
    </message>
    <message>
        <source>“%1” is no longer a folder</source>
        <translation>„%1“ ist kein Ordner mehr</translation>
    </message>
    <message>
        <source>“%1” is now a folder</source>
        <translation>„%1“ ist jetzt ein Ordner</translation>
    </message>
    <message>
        <source>“%1” changed since the search: its size is no longer %2 bytes</source>
        <translation>„%1“ hat sich seit der Suche geändert: Die Größe beträgt nicht mehr %2 Byte</translation>
    </message>
    <message>
        <source>“%1” was modified since the search</source>
        <translation>„%1“ wurde seit der Suche verändert</translation>
    </message>
    <message>
        <source>“%1” changed since the search (its change time moved, though its content may look the same)</source>
        <translation>„%1“ hat sich seit der Suche geändert (der Änderungszeitpunkt hat sich verschoben, auch wenn der Inhalt gleich aussehen mag)</translation>
    </message>
    <message>
        <source>its kept copy “%1” is no longer there</source>
        <translation>die behaltene Kopie „%1“ ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>its kept copy is not as the search found it: %1</source>
        <translation>die behaltene Kopie ist nicht mehr so, wie die Suche sie gefunden hat: %1</translation>
    </message>
    <message>
        <source>“%1” or its kept copy “%2” could not be looked at: %3</source>
        <translation>„%1“ oder die behaltene Kopie „%2“ konnte nicht untersucht werden: %3</translation>
    </message>
    <message>
        <source>“%1” and its kept copy “%2” are one file reached through two paths</source>
        <translation>„%1“ und die behaltene Kopie „%2“ sind eine Datei, die über zwei Pfade erreicht wird</translation>
    </message>
    <message>
        <source>its kept copy “%1” is a link to “%2” itself</source>
        <translation>die behaltene Kopie „%1“ ist ein Link auf „%2“ selbst</translation>
    </message>
    <message>
        <source>“%1” no longer has the content of its kept copy “%2”</source>
        <translation>„%1“ hat nicht mehr den Inhalt der behaltenen Kopie „%2“</translation>
    </message>
    <message>
        <source>“%1” holds copies of files of “%2” under other names: it can be moved to the trash or deleted, not replaced by a link or clone</source>
        <translation>„%1“ enthält Kopien von Dateien aus „%2“ unter anderen Namen: Der Ordner kann in den Papierkorb verschoben oder gelöscht, aber nicht durch einen Link oder Klon ersetzt werden</translation>
    </message>
</context>
<context>
    <name>MDImporterAdditions</name>
    <message>
        <source>Downloaded date</source>
        <translation>Heruntergeladen am</translation>
    </message>
    <message>
        <source>Date when the item was downloaded</source>
        <translation>Datum, an dem das Objekt heruntergeladen wurde</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Start date of the item</source>
        <translation>Anfangsdatum des Objekts</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>End date of the item</source>
        <translation>Enddatum des Objekts</translation>
    </message>
    <message>
        <source>Text content length</source>
        <translation>Länge des Textinhalts</translation>
    </message>
    <message>
        <source>Length of text content of this item</source>
        <translation>Länge des Textinhalts dieses Objekts</translation>
    </message>
</context>
<context>
    <name>MediaDecoding</name>
    <message>
        <source>Pictures cannot be decoded: the media module is missing.</source>
        <translation>Bilder können nicht dekodiert werden: Das Medienmodul fehlt.</translation>
    </message>
    <message>
        <source>Recordings cannot be decoded: the media module is missing.</source>
        <translation>Aufnahmen können nicht dekodiert werden: Das Medienmodul fehlt.</translation>
    </message>
</context>
<context>
    <name>NamePatterns</name>
    <message>
        <source>Invalid regular expression:
%1</source>
        <translation>Ungültiger regulärer Ausdruck:
%1</translation>
    </message>
</context>
<context>
    <name>PictureDecoder</name>
    <message>
        <source>The picture is too large to decode (%1 × %2 pixels).</source>
        <translation>Das Bild ist zu groß zum Dekodieren (%1 × %2 Pixel).</translation>
    </message>
    <message>
        <source>Decoding the picture took too long.</source>
        <translation>Das Dekodieren des Bildes hat zu lange gedauert.</translation>
    </message>
    <message>
        <source>The picture cannot be decoded: %1</source>
        <translation>Das Bild kann nicht dekodiert werden: %1</translation>
    </message>
    <message>
        <source>The picture cannot be decoded.</source>
        <translation>Das Bild kann nicht dekodiert werden.</translation>
    </message>
    <message>
        <source>The camera raw file holds no preview that can be read.</source>
        <translation>Die Kamera-Rohdatei enthält keine lesbare Vorschau.</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>Nicht genügend Speicher.</translation>
    </message>
    <message>
        <source>The file is not a picture that can be read.</source>
        <translation>Die Datei ist kein lesbares Bild.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>PutBack</name>
    <message>
        <source>“%1” is not in the Trash.</source>
        <translation>„%1“ ist nicht im Papierkorb.</translation>
    </message>
    <message>
        <source>The operations journal could not record the step: %1</source>
        <translation>Das Aktionsprotokoll konnte den Schritt nicht aufzeichnen: %1</translation>
    </message>
    <message>
        <source>“%1” could not be put back from the Trash.</source>
        <translation>„%1“ konnte nicht aus dem Papierkorb wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>%1 could not be put back from the Trash.</source>
        <translation>%1 konnten nicht aus dem Papierkorb wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Put Back All</source>
        <translation>Alle wiederherstellen</translation>
    </message>
    <message>
        <source>Do you want to put back “%1” to its original location “%2”?</source>
        <translation>Möchten Sie „%1“ an seinem ursprünglichen Ort „%2“ wiederherstellen?</translation>
    </message>
    <message>
        <source>Grant Access to “%1”…</source>
        <translation>Zugriff auf „%1“ gewähren …</translation>
    </message>
    <message>
        <source>Error: “%1” could not be put back to “%2”</source>
        <translation>Fehler: „%1“ konnte nicht in „%2“ wiederhergestellt werden</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>its original is neither at its path nor where it went</source>
        <translation>das Original ist weder an seinem Pfad noch dort, wohin es verschoben wurde</translation>
    </message>
    <message>
        <source>the replacement at its path could not be removed</source>
        <translation>der Ersatz an seinem Pfad konnte nicht entfernt werden</translation>
    </message>
</context>
<context>
    <name>Replacement</name>
    <message>
        <source> and Do Not Replace</source>
        <translation> und nicht ersetzen</translation>
    </message>
    <message>
        <source> and Replace with Alias</source>
        <translation> und durch Alias ersetzen</translation>
    </message>
    <message>
        <source> and Replace with Symbolic Link</source>
        <translation> und durch symbolischen Link ersetzen</translation>
    </message>
    <message>
        <source> and Replace with Relative Symbolic Link</source>
        <translation> und durch relativen symbolischen Link ersetzen</translation>
    </message>
    <message>
        <source> and Replace with Hard Link</source>
        <translation> und durch harten Link ersetzen</translation>
    </message>
    <message>
        <source> and Replace with Clone</source>
        <translation> und durch Klon ersetzen</translation>
    </message>
</context>
<context>
    <name>ResultActions</name>
    <message>
        <source>Select Automatically in Folder</source>
        <translation>Im Ordner automatisch auswählen</translation>
    </message>
</context>
<context>
    <name>ResultsFile</name>
    <message>
        <source>the value of “%1” is not valid</source>
        <translation>der Wert von „%1“ ist ungültig</translation>
    </message>
    <message>
        <source>the value of “%1” is negative</source>
        <translation>der Wert von „%1“ ist negativ</translation>
    </message>
    <message>
        <source>the value of “%1” is out of range</source>
        <translation>der Wert von „%1“ liegt außerhalb des erlaubten Bereichs</translation>
    </message>
    <message>
        <source>the value of “%1” is not an absolute path</source>
        <translation>der Wert von „%1“ ist kein absoluter Pfad</translation>
    </message>
    <message>
        <source>the value of “%1” contains a NUL character</source>
        <translation>der Wert von „%1“ enthält ein NUL-Zeichen</translation>
    </message>
    <message>
        <source>“%1” is not a Selfsame results file.</source>
        <translation>„%1“ ist keine Ergebnisdatei von Selfsame.</translation>
    </message>
    <message>
        <source>“%1” is incomplete: it ends before its end. It may have been cut short while it was saved or copied.</source>
        <translation>„%1“ ist unvollständig: Die Datei endet vor ihrem Ende. Sie wurde vielleicht beim Speichern oder Kopieren abgeschnitten.</translation>
    </message>
    <message>
        <source>“%1” is damaged: %2.</source>
        <translation>„%1“ ist beschädigt: %2.</translation>
    </message>
    <message>
        <source>“%1” was saved by a newer version of Selfsame (results format %2); this version reads format %3 and older.</source>
        <translation>„%1“ wurde von einer neueren Version von Selfsame gespeichert (Ergebnisformat %2); diese Version liest Format %3 und ältere.</translation>
    </message>
    <message>
        <source>it is not valid JSON</source>
        <translation>sie ist kein gültiges JSON</translation>
    </message>
    <message>
        <source>it holds a number out of range</source>
        <translation>sie enthält eine Zahl außerhalb des erlaubten Bereichs</translation>
    </message>
    <message>
        <source>it holds a number that is not valid</source>
        <translation>sie enthält eine ungültige Zahl</translation>
    </message>
    <message>
        <source>the value of “%1” is not a valid number</source>
        <translation>der Wert von „%1“ ist keine gültige Zahl</translation>
    </message>
    <message>
        <source>The results could not be saved to “%1”: %2</source>
        <translation>Die Ergebnisse konnten nicht in „%1“ gespeichert werden: %2</translation>
    </message>
    <message>
        <source>“%1” could not be opened: %2</source>
        <translation>„%1“ konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>it has no valid format version</source>
        <translation>sie hat keine gültige Formatversion</translation>
    </message>
    <message>
        <source>it holds no search request</source>
        <translation>sie enthält keine Suchanfrage</translation>
    </message>
    <message>
        <source>it holds no list of groups</source>
        <translation>sie enthält keine Liste von Gruppen</translation>
    </message>
    <message>
        <source>a group has no number, count or items</source>
        <translation>eine Gruppe hat keine Nummer, Anzahl oder Objekte</translation>
    </message>
    <message>
        <source>two groups share the number %1</source>
        <translation>zwei Gruppen haben dieselbe Nummer %1</translation>
    </message>
    <message>
        <source>an item is neither in the top list nor hidden</source>
        <translation>ein Objekt ist weder in der oberen Liste noch ausgeblendet</translation>
    </message>
    <message>
        <source>the top list has gaps</source>
        <translation>die obere Liste hat Lücken</translation>
    </message>
    <message>
        <source>two items share one row</source>
        <translation>zwei Objekte teilen sich eine Zeile</translation>
    </message>
    <message>
        <source>the value of “%1” is not 128 hexadecimal digits</source>
        <translation>der Wert von „%1“ besteht nicht aus 128 Hexadezimalziffern</translation>
    </message>
    <message>
        <source>the value of “%1” is not 32 hexadecimal digits</source>
        <translation>der Wert von „%1“ besteht nicht aus 32 Hexadezimalziffern</translation>
    </message>
    <message>
        <source>the value of “%1” is not a known status</source>
        <translation>der Wert von „%1“ ist kein bekannter Status</translation>
    </message>
    <message>
        <source>the value of “%1” is not base64</source>
        <translation>der Wert von „%1“ ist kein Base64</translation>
    </message>
    <message>
        <source>an item has no path</source>
        <translation>ein Objekt hat keinen Pfad</translation>
    </message>
    <message>
        <source>the search parameter “%1” holds a path that is not absolute</source>
        <translation>der Suchparameter „%1“ enthält einen Pfad, der nicht absolut ist</translation>
    </message>
    <message>
        <source>the search parameter “%1” holds a path with a NUL character</source>
        <translation>der Suchparameter „%1“ enthält einen Pfad mit einem NUL-Zeichen</translation>
    </message>
    <message>
        <source>the search parameter “%1” holds an expression that is not valid</source>
        <translation>der Suchparameter „%1“ enthält einen ungültigen Ausdruck</translation>
    </message>
    <message>
        <source>the search parameter “%1” is missing or not valid</source>
        <translation>der Suchparameter „%1“ fehlt oder ist ungültig</translation>
    </message>
</context>
<context>
    <name>ResultsFileDialogs</name>
    <message>
        <source>Open Results</source>
        <translation>Ergebnisse öffnen</translation>
    </message>
    <message>
        <source>Selfsame Results (*.%1 *.json);;All Files (*)</source>
        <translation>Selfsame-Ergebnisse (*.%1 *.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Results</source>
        <translation>Ergebnisse speichern</translation>
    </message>
    <message>
        <source>Selfsame Results (*.%1)</source>
        <translation>Selfsame-Ergebnisse (*.%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
</context>
<context>
    <name>ResultsStatus</name>
    <message numerus="yes">
        <source>%Ln group(s)</source>
        <translation>
            <numerusform>%Ln Gruppe</numerusform>
            <numerusform>%Ln Gruppen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 reclaimable</source>
        <translation>%1 freigebbar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden</source>
        <translation>
            <numerusform>%Ln ausgeblendet</numerusform>
            <numerusform>%Ln ausgeblendet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unreadable</source>
        <translation>
            <numerusform>%Ln nicht lesbar</numerusform>
            <numerusform>%Ln nicht lesbar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln missing</source>
        <translation>
            <numerusform>%Ln fehlt</numerusform>
            <numerusform>%Ln fehlen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln duplicate(s) selected (%1 on disk)</source>
        <translation>
            <numerusform>%Ln Duplikat ausgewählt (%1 belegt)</numerusform>
            <numerusform>%Ln Duplikate ausgewählt (%1 belegt)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected (%1 on disk)</source>
        <translation>
            <numerusform>%Ln ausgewählt (%1 belegt)</numerusform>
            <numerusform>%Ln ausgewählt (%1 belegt)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Group of %Ln file(s) · %1 on disk · %2 reclaimable</source>
        <translation>
            <numerusform>Gruppe aus %Ln Datei · %1 belegt · %2 freigebbar</numerusform>
            <numerusform>Gruppe aus %Ln Dateien · %1 belegt · %2 freigebbar</numerusform>
        </translation>
    </message>
    <message>
        <source>Partial results: the search was stopped. %1</source>
        <translation>Unvollständige Ergebnisse: Die Suche wurde angehalten. %1</translation>
    </message>
    <message>
        <source>“%1” has copies of all its files in “%2” · %3 reclaimable</source>
        <translation>„%1“ hat Kopien aller seiner Dateien in „%2“ · %3 freigebbar</translation>
    </message>
</context>
<context>
    <name>SearchPanelController</name>
    <message>
        <source>macOS generated aesthetic score</source>
        <translation>von macOS erzeugte ästhetische Bewertung</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Zeichenkette</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>Wahrheitswert</translation>
    </message>
</context>
<context>
    <name>SelfsameCli</name>
    <message>
        <source>
Without --print0 every path is shown on one line, escaped much as ls -b does: \\ for a
backslash; \n, \t, \r, \a, \b, \f, \v for those control characters; \xHH for the
bytes of any other control character and for each byte that is not UTF-8 (\xFF); spaces
stay as they are. Messages and file-action lines show paths the same way.

Exit status: 0 duplicates found, 1 none found, 2 bad usage or input, 130 interrupted.
</source>
        <translation>
Ohne --print0 wird jeder Pfad auf einer Zeile gezeigt, maskiert ähnlich wie bei ls -b: \\ für
einen Backslash; \n, \t, \r, \a, \b, \f, \v für diese Steuerzeichen; \xHH für die Bytes
jedes anderen Steuerzeichens und für jedes Byte, das kein UTF-8 ist (\xFF); Leerzeichen
bleiben, wie sie sind. Meldungen und Zeilen zu Dateiaktionen zeigen Pfade auf dieselbe Weise.

Rückgabewert: 0 Duplikate gefunden, 1 keine gefunden, 2 falscher Aufruf oder falsche Eingabe,
130 unterbrochen.
</translation>
    </message>
    <message>
        <source>option %1 takes no value</source>
        <translation>Option %1 nimmt keinen Wert an</translation>
    </message>
    <message>
        <source>option %1 needs a value</source>
        <translation>Option %1 braucht einen Wert</translation>
    </message>
    <message>
        <source>invalid size for --min-size: &apos;%1&apos;</source>
        <translation>ungültige Größe für --min-size: „%1“</translation>
    </message>
    <message>
        <source>invalid size for --max-size: &apos;%1&apos;</source>
        <translation>ungültige Größe für --max-size: „%1“</translation>
    </message>
    <message>
        <source>give only one of --ext and --exclude-ext</source>
        <translation>nur eines von --ext und --exclude-ext angeben</translation>
    </message>
    <message>
        <source>%1 needs at least one extension</source>
        <translation>%1 braucht mindestens eine Dateiendung</translation>
    </message>
    <message>
        <source>--depth needs a whole number of at least 1, not &apos;%1&apos;</source>
        <translation>--depth braucht eine ganze Zahl von mindestens 1, nicht „%1“</translation>
    </message>
    <message>
        <source>--format takes text, json or csv, not &apos;%1&apos;</source>
        <translation>--format nimmt text, json oder csv an, nicht „%1“</translation>
    </message>
    <message>
        <source>--tolerance needs a number of at least 0, not &apos;%1&apos;</source>
        <translation>--tolerance braucht eine Zahl von mindestens 0, nicht „%1“</translation>
    </message>
    <message>
        <source>--attribute needs a key such as kMDItemTitle</source>
        <translation>--attribute braucht einen Schlüssel wie kMDItemTitle</translation>
    </message>
    <message>
        <source>give only one --select</source>
        <translation>nur ein --select angeben</translation>
    </message>
    <message>
        <source>--select folder needs a folder</source>
        <translation>--select folder braucht einen Ordner</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>unbekannte Option %1</translation>
    </message>
    <message>
        <source>--print0 goes with the text format only</source>
        <translation>--print0 geht nur mit dem Textformat</translation>
    </message>
    <message>
        <source>--tolerance applies to the duration and attribute modes only</source>
        <translation>--tolerance gilt nur im Dauer- und im Attributmodus</translation>
    </message>
    <message>
        <source>--attribute applies to the attribute mode only</source>
        <translation>--attribute gilt nur im Attributmodus</translation>
    </message>
    <message>
        <source>--ignore-extension, --ignore-suffixes and --suffixes apply to the name mode only</source>
        <translation>--ignore-extension, --ignore-suffixes und --suffixes gelten nur im Namensmodus</translation>
    </message>
    <message>
        <source>%1 needs --select</source>
        <translation>%1 braucht --select</translation>
    </message>
    <message>
        <source>no folder or file to search</source>
        <translation>kein Ordner und keine Datei zum Durchsuchen</translation>
    </message>
    <message>
        <source>--anywhere needs a file, not &apos;%1&apos;</source>
        <translation>--anywhere braucht eine Datei, nicht „%1“</translation>
    </message>
    <message>
        <source>none of the given paths exists</source>
        <translation>keiner der angegebenen Pfade existiert</translation>
    </message>
    <message>
        <source>give only one of --trash and --delete</source>
        <translation>nur eines von --trash und --delete angeben</translation>
    </message>
    <message>
        <source>--replace-with takes symlink, relative-symlink, hardlink, clone or alias, not &apos;%1&apos;</source>
        <translation>--replace-with nimmt symlink, relative-symlink, hardlink, clone oder alias an, nicht „%1“</translation>
    </message>
    <message>
        <source>--yes, --dry-run and --plan go with --trash, --delete or --replace-with</source>
        <translation>--yes, --dry-run und --plan gehen mit --trash, --delete oder --replace-with</translation>
    </message>
    <message>
        <source>--plan goes with --replace-with clone alone</source>
        <translation>--plan geht nur mit --replace-with clone allein</translation>
    </message>
    <message>
        <source>Acting on the copies that --select selects (never on a group&apos;s last copy):
  --trash                    move them to the trash
  --delete                   delete them for good
  --replace-with MODE        symlink, relative-symlink, hardlink, clone or alias to the
                             group&apos;s kept copy; alone, clone shares storage in place and
                             a link mode deletes the copy and puts the link at its path
  --plan FILE                write the cloning plan there (--replace-with clone alone)
  --yes                      act; without it the actions are only shown (--dry-run)
With --print0 standard output lists only the path of each copy acted on (or that would be),
each as its exact bytes ended by a NUL; a clone dry run then shows no plan (see --plan).
Failures and counts go to standard error as usual.
Exit status with an action: 0 all done (or would be), 1 anything failed or was refused.
</source>
        <translation>Aktionen mit den Kopien, die --select auswählt (nie mit der letzten Kopie einer Gruppe):
  --trash                    sie in den Papierkorb verschieben
  --delete                   sie endgültig löschen
  --replace-with MODUS       symlink, relative-symlink, hardlink, clone oder alias zur
                             behaltenen Kopie der Gruppe; allein teilt clone den Speicher an
                             Ort und Stelle, und ein Link-Modus löscht die Kopie und legt den
                             Link an ihren Pfad
  --plan DATEI               den Klonplan dorthin schreiben (nur mit --replace-with clone allein)
  --yes                      ausführen; ohne diese Option werden die Aktionen nur gezeigt
                             (--dry-run)
Mit --print0 listet die Standardausgabe nur den Pfad jeder bearbeiteten (oder zu bearbeitenden)
Kopie, jeden als seine genauen Bytes, abgeschlossen mit NUL; ein Probelauf beim Klonen zeigt
dann keinen Plan (siehe --plan).
Fehler und Zählungen gehen wie gewohnt auf die Standardfehlerausgabe.
Rückgabewert mit einer Aktion: 0 alles erledigt (oder wäre es), 1 etwas fehlgeschlagen oder
abgelehnt.
</translation>
    </message>
    <message>
        <source>an alias</source>
        <translation>einen Alias</translation>
    </message>
    <message>
        <source>a symbolic link</source>
        <translation>einen symbolischen Link</translation>
    </message>
    <message>
        <source>a relative symbolic link</source>
        <translation>einen relativen symbolischen Link</translation>
    </message>
    <message>
        <source>a hard link</source>
        <translation>einen harten Link</translation>
    </message>
    <message>
        <source>a clone</source>
        <translation>einen Klon</translation>
    </message>
    <message>
        <source>refused: %1: every copy of its group is selected
</source>
        <translation>abgelehnt: %1: jede Kopie seiner Gruppe ist ausgewählt
</translation>
    </message>
    <message>
        <source>recovered: %1: an interrupted action was rolled back, the file is as it was
</source>
        <translation>wiederhergestellt: %1: eine unterbrochene Aktion wurde zurückgenommen, die Datei ist wie vorher
</translation>
    </message>
    <message>
        <source>recovered: %1: an interrupted action was finished
</source>
        <translation>wiederhergestellt: %1: eine unterbrochene Aktion wurde abgeschlossen
</translation>
    </message>
    <message>
        <source>recovery failed: %1
</source>
        <translation>Wiederherstellung fehlgeschlagen: %1
</translation>
    </message>
    <message>
        <source>, replaced by %1 to %2</source>
        <translation>, ersetzt durch %1 auf %2</translation>
    </message>
    <message>
        <source>would move to the trash: %1%2
</source>
        <translation>würde in den Papierkorb verschieben: %1%2
</translation>
    </message>
    <message>
        <source>would delete: %1%2
</source>
        <translation>würde löschen: %1%2
</translation>
    </message>
    <message>
        <source>failed: %1: %2
</source>
        <translation>fehlgeschlagen: %1: %2
</translation>
    </message>
    <message>
        <source> (now %1)</source>
        <translation> (jetzt %1)</translation>
    </message>
    <message>
        <source>moved to the trash: %1%2%3
</source>
        <translation>in den Papierkorb verschoben: %1%2%3
</translation>
    </message>
    <message>
        <source>deleted: %1%2%3
</source>
        <translation>gelöscht: %1%2%3
</translation>
    </message>
    <message>
        <source>warning: %1
</source>
        <translation>Warnung: %1
</translation>
    </message>
    <message>
        <source>%1 done, %2 failed
</source>
        <translation>%1 erledigt, %2 fehlgeschlagen
</translation>
    </message>
    <message>
        <source>%1 would be done, %2 refused (dry run: add --yes to act)
</source>
        <translation>%1 würden erledigt, %2 abgelehnt (Probelauf: --yes hinzufügen, um auszuführen)
</translation>
    </message>
    <message>
        <source>deleting cannot be undone: files deleted with nothing in their place are gone for good
</source>
        <translation>Löschen kann nicht rückgängig gemacht werden: Dateien, die ohne Ersatz gelöscht werden, sind endgültig weg
</translation>
    </message>
    <message>
        <source>`selfsame-cli undo` undoes this action
</source>
        <translation>`selfsame-cli undo` macht diese Aktion rückgängig
</translation>
    </message>
    <message>
        <source>left alone because they or their kept copy changed since the search, or because they were one file reached through two paths: %1
</source>
        <translation>unverändert gelassen, weil sie oder ihre behaltene Kopie sich seit der Suche geändert haben oder weil sie eine Datei waren, die über zwei Pfade erreicht wurde: %1
</translation>
    </message>
    <message>
        <source>plan written to %1
</source>
        <translation>Plan geschrieben nach %1
</translation>
    </message>
    <message>
        <source>%1
</source>
        <translation>%1
</translation>
    </message>
    <message>
        <source>dry run: add --yes to clone
</source>
        <translation>Probelauf: --yes hinzufügen, um zu klonen
</translation>
    </message>
    <message>
        <source>cloned: %1
</source>
        <translation>geklont: %1
</translation>
    </message>
    <message>
        <source>%1 cloned, %2 failed
</source>
        <translation>%1 geklont, %2 fehlgeschlagen
</translation>
    </message>
    <message>
        <source>selfsame-cli: the operations journal %1 cannot be opened: %2
</source>
        <translation>selfsame-cli: Das Aktionsprotokoll %1 kann nicht geöffnet werden: %2
</translation>
    </message>
    <message>
        <source>%1 rolled back, %2 finished, %3 failed
</source>
        <translation>%1 zurückgenommen, %2 abgeschlossen, %3 fehlgeschlagen
</translation>
    </message>
    <message>
        <source>The operations journal holds no actions.
</source>
        <translation>Das Aktionsprotokoll enthält keine Aktionen.
</translation>
    </message>
    <message>
        <source>selfsame-cli: undo takes at most one action number, as `selfsame-cli journal` lists them
Usage: selfsame-cli undo [ACTION]
</source>
        <translation>selfsame-cli: undo nimmt höchstens eine Aktionsnummer, wie `selfsame-cli journal` sie auflistet
Aufruf: selfsame-cli undo [AKTION]
</translation>
    </message>
    <message>
        <source>selfsame-cli: there is no action %1 in the journal
</source>
        <translation>selfsame-cli: Im Protokoll gibt es keine Aktion %1
</translation>
    </message>
    <message>
        <source>selfsame-cli: there is no action to undo
</source>
        <translation>selfsame-cli: Es gibt keine Aktion, die rückgängig gemacht werden kann
</translation>
    </message>
    <message>
        <source>undoing action %1: %2, %3
</source>
        <translation>Aktion %1 wird rückgängig gemacht: %2, %3
</translation>
    </message>
    <message>
        <source>selfsame-cli: %1
</source>
        <translation>selfsame-cli: %1
</translation>
    </message>
    <message>
        <source>undone: %1
</source>
        <translation>rückgängig gemacht: %1
</translation>
    </message>
    <message>
        <source>cannot be undone: %1: it was deleted for good
</source>
        <translation>kann nicht rückgängig gemacht werden: %1: wurde endgültig gelöscht
</translation>
    </message>
    <message>
        <source>refused: %1
</source>
        <translation>abgelehnt: %1
</translation>
    </message>
    <message>
        <source>%1 undone, %2 refused, %3 deleted for good
</source>
        <translation>%1 rückgängig gemacht, %2 abgelehnt, %3 endgültig gelöscht
</translation>
    </message>
    <message>
        <source>selfsame-cli: --trash, --delete and --replace-with act on the copies that --select selects
</source>
        <translation>selfsame-cli: --trash, --delete und --replace-with wirken auf die Kopien, die --select auswählt
</translation>
    </message>
    <message>
        <source>selfsame-cli: no file type is known for the extension &apos;%1&apos;
</source>
        <translation>selfsame-cli: Für die Dateiendung „%1“ ist kein Dateityp bekannt
</translation>
    </message>
    <message>
        <source>selfsame-cli: put-back needs the files in the trash to put back
Usage: selfsame-cli put-back FILE...
</source>
        <translation>selfsame-cli: put-back braucht die Dateien im Papierkorb, die zurückgelegt werden sollen
Aufruf: selfsame-cli put-back DATEI...
</translation>
    </message>
    <message>
        <source>not put back: %1: no record of where it came from
</source>
        <translation>nicht zurückgelegt: %1: Es ist nicht bekannt, woher die Datei stammt
</translation>
    </message>
    <message>
        <source>not put back: %1 -&gt; %2: %3
</source>
        <translation>nicht zurückgelegt: %1 -&gt; %2: %3
</translation>
    </message>
    <message>
        <source>put back: %1 -&gt; %2
</source>
        <translation>zurückgelegt: %1 -&gt; %2
</translation>
    </message>
    <message>
        <source>%1 put back, %2 failed
</source>
        <translation>%1 zurückgelegt, %2 fehlgeschlagen
</translation>
    </message>
    <message>
        <source>--select folder needs an existing folder, not &apos;%1&apos;</source>
        <translation>--select folder braucht einen vorhandenen Ordner, nicht „%1“</translation>
    </message>
    <message>
        <source>%1 does not apply to --select %2</source>
        <translation>%1 gilt nicht für --select %2</translation>
    </message>
    <message>
        <source>--keep takes oldest or newest, not &apos;%1&apos;</source>
        <translation>--keep nimmt oldest oder newest an, nicht „%1“</translation>
    </message>
    <message>
        <source>--date takes created, modified, last-used or added, not &apos;%1&apos;</source>
        <translation>--date nimmt created, modified, last-used oder added an, nicht „%1“</translation>
    </message>
    <message>
        <source>--select tag needs a tag name, or --any-tag or --no-tag</source>
        <translation>--select tag braucht einen Schlagwortnamen, oder --any-tag oder --no-tag</translation>
    </message>
    <message>
        <source>--any-tag and --no-tag take no tag name</source>
        <translation>--any-tag und --no-tag nehmen keinen Schlagwortnamen an</translation>
    </message>
    <message>
        <source>ACTION</source>
        <translation>AKTION</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>WANN</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>DATEIEN</translation>
    </message>
    <message>
        <source>STATE</source>
        <translation>ZUSTAND</translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation>WAS</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>selfsame-cli: cannot remove the digest cache %1
</source>
        <translation>selfsame-cli: Der Prüfsummen-Zwischenspeicher %1 kann nicht entfernt werden
</translation>
    </message>
    <message>
        <source>cleared the digest cache %1
</source>
        <translation>Prüfsummen-Zwischenspeicher %1 geleert
</translation>
    </message>
    <message>
        <source>selfsame-cli: no such file or folder: %1
</source>
        <translation>selfsame-cli: Datei oder Ordner nicht gefunden: %1
</translation>
    </message>
    <message>
        <source>files enumerated: %1</source>
        <translation>aufgezählte Dateien: %1</translation>
    </message>
    <message>
        <source>files hashed: %1</source>
        <translation>gehashte Dateien: %1</translation>
    </message>
    <message>
        <source>files told apart by their first and last bytes: %1</source>
        <translation>an ihren ersten und letzten Bytes unterschiedene Dateien: %1</translation>
    </message>
    <message>
        <source>bytes read: %1</source>
        <translation>gelesene Bytes: %1</translation>
    </message>
    <message>
        <source>files known from the digest cache: %1</source>
        <translation>aus dem Prüfsummen-Zwischenspeicher bekannte Dateien: %1</translation>
    </message>
    <message>
        <source>unreadable folders: %1</source>
        <translation>nicht lesbare Ordner: %1</translation>
    </message>
    <message>
        <source>unreadable files: %1</source>
        <translation>nicht lesbare Dateien: %1</translation>
    </message>
    <message>
        <source>groups: %1</source>
        <translation>Gruppen: %1</translation>
    </message>
    <message>
        <source>duplicates: %1</source>
        <translation>Duplikate: %1</translation>
    </message>
    <message>
        <source>reclaimable bytes: %1</source>
        <translation>freigebbare Bytes: %1</translation>
    </message>
    <message>
        <source>--mode takes content, duration, name, attribute, similar-images or similar-audio, not &apos;%1&apos;</source>
        <translation>--mode nimmt content, duration, name, attribute, similar-images oder similar-audio an, nicht „%1“</translation>
    </message>
    <message>
        <source>--similarity needs a whole number from 0 to 100, not &apos;%1&apos;</source>
        <translation>--similarity braucht eine ganze Zahl von 0 bis 100, nicht „%1“</translation>
    </message>
    <message>
        <source>--similarity applies to the similar-images and similar-audio modes only</source>
        <translation>--similarity gilt nur in den Modi similar-images und similar-audio</translation>
    </message>
    <message>
        <source>--distinguish-greyscale applies to the similar-images mode only</source>
        <translation>--distinguish-greyscale gilt nur im Modus similar-images</translation>
    </message>
    <message>
        <source>selfsame-cli: cannot decode %1</source>
        <translation>selfsame-cli: %1 kann nicht dekodiert werden</translation>
    </message>
    <message>
        <source>selfsame-cli: interrupted: the output is partial, it holds only the groups found so far
</source>
        <translation>selfsame-cli: unterbrochen: Die Ausgabe ist unvollständig, sie enthält nur die bisher gefundenen Gruppen
</translation>
    </message>
    <message>
        <source>selfsame-cli: --replace-with needs copies of the same content; the similar modes find files that only look or sound alike
</source>
        <translation>selfsame-cli: --replace-with braucht Kopien mit demselben Inhalt; die Ähnlichkeitsmodi finden Dateien, die nur gleich aussehen oder gleich klingen
</translation>
    </message>
    <message>
        <source>Usage: selfsame-cli [OPTIONS] PATH...
       selfsame-cli [OPTIONS] --anywhere FILE [PATH...]
       selfsame-cli put-back FILE...   (files in the trash, back to where they came from)
       selfsame-cli clear-cache        (forget the file digests kept between searches)
       selfsame-cli recover            (finish or roll back file actions that were interrupted)
       selfsame-cli journal            (the file actions done, newest first, numbered)
       selfsame-cli undo [ACTION]      (undo the last action, or the one of that number)
Finds files (and with --compare-folders, folders) of equal content, or of equal duration,
name or metadata attribute.

  --include-hidden           search hidden files and folders (default: skipped)
  --min-size SIZE            smallest file searched, default 1 (&quot;10 MB&quot;, &quot;4KiB&quot;, &quot;500&quot;)
  --max-size SIZE            largest file searched, default none
  --no-size-filter           no size limits at all
  --ext LIST                 only these extensions (comma or blank separated)
  --exclude-ext LIST         all files but these extensions
  --skip PATTERN             skip names matching a glob or /regex/ (repeatable)
  --depth N                  levels below each location (1 = its direct children only)
  --compare-folders          also find folders of equal content
  --contained-folders        also find folders whose files all have copies inside one other
                             searched folder, whatever their names and layout
  --ignore-mp4-header        compare MP4 files without their first 16 KiB
  --ignore-clones            leave out groups whose files already share their storage
  --include-read-only        also search items you may not modify or delete
  --include-other-owner      also search items owned by other users
  --mode MODE                content (default), duration, name, attribute, similar-images
                             (pictures that look alike) or similar-audio (the same recording
                             in any format or bit rate)
  --similarity N             similar modes: how alike, 0 to 100 (default 90: very similar)
  --distinguish-greyscale    similar-images: a grey copy is not like its colour original
  --tolerance N              duration and attribute modes: largest difference still equal, in
                             seconds for durations and dates, seconds of arc for latitude and
                             longitude, else the attribute&apos;s unit (default 0.1 s for durations, 0)
  --attribute KEY            attribute mode: the attribute compared (default kMDItemTitle)
  --ignore-extension         name mode: compare names without their extension
  --ignore-suffixes          name mode: ignore copy suffixes (&quot; copy, copy #, #,-#, (#)&quot;)
  --suffixes LIST            name mode: ignore these comma-separated suffixes instead
                             (&quot;#&quot; stands for a number from 1 to 99, &quot;##&quot; for any number)
  --list-attributes [EXT]    list the attributes (key, name, type, description), or those
                             that files with this extension can carry, and exit
  --format text|json|csv     output format (default text: a blank line between groups)
  -0, --print0               text output with each path as its exact bytes ended by a NUL
                             instead of a newline, and one more NUL ending each group
                             (text format only; for actions see below)
  --summary                  counts to standard error
  --anywhere                 the first path is a file: find its copies in the other paths,
                             or without them anywhere on the file&apos;s drive
  --no-cache                 read every compared file: neither use nor update the digest
                             cache (kept in $XDG_CACHE_HOME/selfsame)
  --select RULE [OPTIONS]    show which copies a selection rule picks (see below)
  -h, --help                 show this help
  --version                  show the version

</source>
        <translation>Aufruf: selfsame-cli [OPTIONEN] PFAD...
       selfsame-cli [OPTIONEN] --anywhere DATEI [PFAD...]
       selfsame-cli put-back DATEI...  (Dateien im Papierkorb an ihren Ursprungsort zurücklegen)
       selfsame-cli clear-cache        (die zwischen Suchen aufbewahrten Prüfsummen vergessen)
       selfsame-cli recover            (unterbrochene Dateiaktionen abschließen oder zurücknehmen)
       selfsame-cli journal            (die ausgeführten Dateiaktionen, neueste zuerst, nummeriert)
       selfsame-cli undo [AKTION]      (die letzte Aktion rückgängig machen oder die mit dieser Nummer)
Findet Dateien (und mit --compare-folders Ordner) mit gleichem Inhalt oder mit gleicher Dauer,
gleichem Namen oder gleichem Metadaten-Attribut.

  --include-hidden           versteckte Dateien und Ordner durchsuchen (Vorgabe: übersprungen)
  --min-size GRÖSSE          kleinste durchsuchte Datei, Vorgabe 1 (&quot;10 MB&quot;, &quot;4KiB&quot;, &quot;500&quot;)
  --max-size GRÖSSE          größte durchsuchte Datei, Vorgabe: keine Grenze
  --no-size-filter           überhaupt keine Größengrenzen
  --ext LISTE                nur diese Dateiendungen (durch Komma oder Leerzeichen getrennt)
  --exclude-ext LISTE        alle Dateien außer diesen Dateiendungen
  --skip MUSTER              Namen überspringen, die auf ein Glob-Muster oder /regex/ passen
                             (mehrfach möglich)
  --depth N                  Ebenen unterhalb jedes Orts (1 = nur sein direkter Inhalt)
  --compare-folders          auch Ordner mit gleichem Inhalt finden
  --contained-folders        auch Ordner finden, deren Dateien alle Kopien in einem anderen
                             durchsuchten Ordner haben, gleich unter welchen Namen und wo
  --ignore-mp4-header        MP4-Dateien ohne ihre ersten 16 KiB vergleichen
  --ignore-clones            Gruppen weglassen, deren Dateien ihren Speicher schon teilen
  --include-read-only        auch Objekte durchsuchen, die Sie nicht ändern oder löschen dürfen
  --include-other-owner      auch Objekte anderer Benutzer durchsuchen
  --mode MODUS               content (Vorgabe), duration, name, attribute, similar-images
                             (Bilder, die gleich aussehen) oder similar-audio (dieselbe
                             Aufnahme in beliebigem Format oder mit beliebiger Bitrate)
  --similarity N             Ähnlichkeitsmodi: wie ähnlich, 0 bis 100 (Vorgabe 90: sehr ähnlich)
  --distinguish-greyscale    similar-images: eine graue Kopie gleicht nicht ihrem farbigen
                             Original
  --tolerance N              Dauer- und Attributmodus: größter Unterschied, der noch als gleich
                             gilt, in Sekunden bei Dauern und Daten, in Bogensekunden bei
                             Breite und Länge, sonst in der Einheit des Attributs
                             (Vorgabe 0.1 s bei Dauern, sonst 0)
  --attribute SCHLÜSSEL      Attributmodus: das verglichene Attribut (Vorgabe kMDItemTitle)
  --ignore-extension         Namensmodus: Namen ohne ihre Dateiendung vergleichen
  --ignore-suffixes          Namensmodus: Kopie-Zusätze ignorieren (&quot; copy, copy #, #,-#, (#)&quot;)
  --suffixes LISTE           Namensmodus: stattdessen diese durch Komma getrennten Zusätze
                             ignorieren (&quot;#&quot; steht für eine Zahl von 1 bis 99, &quot;##&quot; für jede Zahl)
  --list-attributes [ENDUNG] die Attribute auflisten (Schlüssel, Name, Typ, Beschreibung) oder
                             die, die Dateien mit dieser Endung tragen können, und beenden
  --format text|json|csv     Ausgabeformat (Vorgabe text: eine Leerzeile zwischen Gruppen)
  -0, --print0               Textausgabe mit jedem Pfad als seine genauen Bytes, abgeschlossen
                             mit NUL statt Zeilenumbruch, und einem weiteren NUL nach jeder
                             Gruppe (nur im Textformat; zu Aktionen siehe unten)
  --summary                  Zählungen auf die Standardfehlerausgabe
  --anywhere                 der erste Pfad ist eine Datei: ihre Kopien in den anderen Pfaden
                             finden, oder ohne diese überall auf dem Laufwerk der Datei
  --no-cache                 jede verglichene Datei lesen: den Prüfsummen-Zwischenspeicher
                             weder nutzen noch aktualisieren (liegt in $XDG_CACHE_HOME/selfsame)
  --select REGEL [OPTIONEN]  zeigen, welche Kopien eine Auswahlregel wählt (siehe unten)
  -h, --help                 diese Hilfe anzeigen
  --version                  die Version anzeigen

</translation>
    </message>
    <message>
        <source>--contained-folders applies to the content mode only</source>
        <translation>--contained-folders gilt nur für den Inhaltsmodus</translation>
    </message>
    <message numerus="yes">
        <source>recovered: removed %Ln temporary folder(s) of interrupted cloning plans
</source>
        <translation>
            <numerusform>wiederhergestellt: %Ln temporärer Ordner eines unterbrochenen Klonplans entfernt
</numerusform>
            <numerusform>wiederhergestellt: %Ln temporäre Ordner unterbrochener Klonpläne entfernt
</numerusform>
        </translation>
    </message>
    <message>
        <source>unknown rule for --select: &apos;%1&apos; (same-folder-name, same-folder, folder, tag, largest-picture, highest-bitrate or contained-folders)</source>
        <translation>unbekannte Regel für --select: „%1“ (same-folder-name, same-folder, folder, tag, largest-picture, highest-bitrate oder contained-folders)</translation>
    </message>
    <message>
        <source>Automatic selection (files are never touched; each path line starts with
&quot;select &quot; or &quot;keep &quot;, or two blanks where the rule decided nothing):
  --select same-folder-name  in each folder, keep &quot;name.ext&quot; and select &quot;name copy.ext&quot;,
                             &quot;name 2.ext&quot;…
  --select same-folder [--keep oldest|newest] [--date created|modified|last-used|added]
                             in each folder keep the oldest (or newest) copy, select the rest
  --select folder DIR [--inside|--inside-any-depth|--outside|--outside-any-depth]
                  [--if-newer|--if-older|--if-same-date [--date …]]
                             select the copies located so relative to DIR (only those
                             newer, older or as old as a copy elsewhere), keep the others
  --select tag NAME [--having|--not-having]   or   --select tag --any-tag|--no-tag
                             select the copies having (or lacking) the tag, keep the others
  --select largest-picture   similar pictures: keep the most pixels, then the largest file
  --select highest-bitrate   same recordings: keep the highest bit rate, then a lossless format
  --select contained-folders with --contained-folders: select each folder whose files all have
                             copies in another, keep that other folder
</source>
        <translation>Automatische Auswahl (Dateien werden nie verändert; jede Pfadzeile beginnt mit
&quot;select &quot; oder &quot;keep &quot; oder mit zwei Leerzeichen, wo die Regel nichts entschieden hat):
  --select same-folder-name  in jedem Ordner &quot;name.ext&quot; behalten und &quot;name copy.ext&quot;,
                             &quot;name 2.ext&quot;… auswählen
  --select same-folder [--keep oldest|newest] [--date created|modified|last-used|added]
                             in jedem Ordner die älteste (oder neueste) Kopie behalten,
                             den Rest auswählen
  --select folder ORDNER [--inside|--inside-any-depth|--outside|--outside-any-depth]
                  [--if-newer|--if-older|--if-same-date [--date …]]
                             die Kopien auswählen, die so zu ORDNER liegen (nur die, die
                             neuer, älter oder so alt wie eine Kopie anderswo sind), die
                             anderen behalten
  --select tag NAME [--having|--not-having]   oder   --select tag --any-tag|--no-tag
                             die Kopien auswählen, die das Schlagwort haben (oder nicht
                             haben), die anderen behalten
  --select largest-picture   ähnliche Bilder: die meisten Pixel behalten, dann die größte Datei
  --select highest-bitrate   gleiche Aufnahmen: die höchste Bitrate behalten, dann ein
                             verlustfreies Format
  --select contained-folders mit --contained-folders: jeden Ordner auswählen, dessen Dateien
                             alle Kopien in einem anderen haben, diesen anderen behalten
</translation>
    </message>
</context>
<context>
    <name>SimilarSearch</name>
    <message>
        <source>The picture is empty.</source>
        <translation>Das Bild ist leer.</translation>
    </message>
    <message>
        <source>Looking at pictures… %1 of %2</source>
        <translation>Bilder werden angesehen … %1 von %2</translation>
    </message>
    <message>
        <source>Listening to recordings… %1 of %2</source>
        <translation>Aufnahmen werden angehört … %1 von %2</translation>
    </message>
    <message>
        <source>Looking closer at similar pictures… %1 of %2</source>
        <translation>Ähnliche Bilder werden genauer angesehen … %1 von %2</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message>
        <source>a few seconds left</source>
        <translation>noch wenige Sekunden</translation>
    </message>
    <message numerus="yes">
        <source>about %Ln second(s) left</source>
        <translation>
            <numerusform>noch etwa %Ln Sekunde</numerusform>
            <numerusform>noch etwa %Ln Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln minute(s) left</source>
        <translation>
            <numerusform>noch etwa %Ln Minute</numerusform>
            <numerusform>noch etwa %Ln Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln hour(s) left</source>
        <translation>
            <numerusform>noch etwa %Ln Stunde</numerusform>
            <numerusform>noch etwa %Ln Stunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Trash</name>
    <message>
        <source>No trash folder could be made on the volume of “%1”.</source>
        <translation>Auf dem Datenträger von „%1“ konnte kein Papierkorb-Ordner angelegt werden.</translation>
    </message>
    <message>
        <source>The trash information of “%1” could not be written: %2</source>
        <translation>Die Papierkorb-Informationen von „%1“ konnten nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>TrashAlerts</name>
    <message>
        <source>Items moved to the Trash by Selfsame can be put back where they were.</source>
        <translation>Von Selfsame in den Papierkorb verschobene Objekte können wieder an ihren Ort zurückgelegt werden.</translation>
    </message>
    <message>
        <source>Use Actions › Put Back from Trash while these results are open, or restore them from the Trash in the file manager. A file from the Trash opened with Selfsame (even after a restart) is offered to be put back too.</source>
        <translation>Verwenden Sie Aktionen › Aus dem Papierkorb wiederherstellen, solange diese Ergebnisse geöffnet sind, oder stellen Sie sie in der Dateiverwaltung aus dem Papierkorb wieder her. Wird eine Datei aus dem Papierkorb mit Selfsame geöffnet (auch nach einem Neustart), wird ebenfalls angeboten, sie zurückzulegen.</translation>
    </message>
    <message>
        <source>Good to Know!</source>
        <translation>Gut zu wissen!</translation>
    </message>
    <message>
        <source>“%1” could not be moved to the Trash.</source>
        <translation>„%1“ konnte nicht in den Papierkorb verschoben werden.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be moved to the Trash.</source>
        <translation>
            <numerusform>%Ln Datei konnte nicht in den Papierkorb verschoben werden.</numerusform>
            <numerusform>%Ln Dateien konnten nicht in den Papierkorb verschoben werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>The drive “%1” has no trash folder that you may use. You can delete the files immediately instead, which cannot be undone.</source>
        <translation>Das Laufwerk „%1“ hat keinen Papierkorb, den Sie verwenden dürfen. Sie können die Dateien stattdessen sofort löschen; das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>You do not have permission to change the folder “%1”, so nothing can be moved out of it. Its owner or an administrator can give you that permission.</source>
        <translation>Sie haben keine Berechtigung, den Ordner „%1“ zu ändern, daher kann nichts aus ihm verschoben werden. Sein Besitzer oder ein Administrator kann Ihnen diese Berechtigung geben.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete Immediately…</source>
        <translation>Sofort löschen …</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Im Dateimanager anzeigen</translation>
    </message>
    <message>
        <source>“%1” could not be put back from the Trash.</source>
        <translation>„%1“ konnte nicht aus dem Papierkorb wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>%1 could not be put back from the Trash.</source>
        <translation>%1 konnten nicht aus dem Papierkorb wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>the operations journal could not record the step: %1</source>
        <translation>das Aktionsprotokoll konnte den Schritt nicht aufzeichnen: %1</translation>
    </message>
    <message>
        <source>it is no longer in the trash</source>
        <translation>sie ist nicht mehr im Papierkorb</translation>
    </message>
    <message>
        <source>it changed in the trash since</source>
        <translation>sie hat sich seither im Papierkorb geändert</translation>
    </message>
    <message>
        <source>another file now stands at its path</source>
        <translation>an ihrem Pfad steht jetzt eine andere Datei</translation>
    </message>
    <message>
        <source>it changed since</source>
        <translation>sie hat sich seither geändert</translation>
    </message>
    <message>
        <source>its original is no longer in the trash</source>
        <translation>ihr Original ist nicht mehr im Papierkorb</translation>
    </message>
    <message>
        <source>its kept copy “%1” changed since</source>
        <translation>ihre behaltene Kopie „%1“ hat sich seither geändert</translation>
    </message>
    <message>
        <source>its metadata was not recorded</source>
        <translation>ihre Metadaten wurden nicht aufgezeichnet</translation>
    </message>
    <message>
        <source>an independent copy could not be made: %1</source>
        <translation>eine unabhängige Kopie konnte nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>it could not be moved aside: %1</source>
        <translation>sie konnte nicht beiseitegelegt werden: %1</translation>
    </message>
    <message>
        <source>the copy could not be put in its place: %1</source>
        <translation>die Kopie konnte nicht an ihre Stelle gebracht werden: %1</translation>
    </message>
    <message>
        <source>its original could not be moved back: %1</source>
        <translation>ihr Original konnte nicht zurückgebracht werden: %1</translation>
    </message>
    <message>
        <source>Undoing needs %1 free on the drive holding “%2”, which has %3 free. Nothing was changed.</source>
        <translation>Das Rückgängigmachen braucht %1 freien Speicher auf dem Laufwerk mit „%2“, das %3 frei hat. Es wurde nichts verändert.</translation>
    </message>
    <message>
        <source>desktop links</source>
        <translation>Desktop-Verknüpfungen</translation>
    </message>
    <message>
        <source>symbolic links</source>
        <translation>symbolische Links</translation>
    </message>
    <message>
        <source>relative symbolic links</source>
        <translation>relative symbolische Links</translation>
    </message>
    <message>
        <source>hard links</source>
        <translation>harte Links</translation>
    </message>
    <message>
        <source>clones</source>
        <translation>Klone</translation>
    </message>
    <message>
        <source>Moved to the trash</source>
        <translation>In den Papierkorb verschoben</translation>
    </message>
    <message>
        <source>Moved to the trash and replaced with %1</source>
        <translation>In den Papierkorb verschoben und durch %1 ersetzt</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>Deleted and replaced with %1</source>
        <translation>Gelöscht und durch %1 ersetzt</translation>
    </message>
    <message>
        <source>Replaced with clones</source>
        <translation>Durch Klone ersetzt</translation>
    </message>
    <message>
        <source>Put back from the trash</source>
        <translation>Aus dem Papierkorb wiederhergestellt</translation>
    </message>
    <message>
        <source>Undid action %1</source>
        <translation>Aktion %1 rückgängig gemacht</translation>
    </message>
    <message>
        <source>cannot be undone</source>
        <translation>nicht rückgängig zu machen</translation>
    </message>
    <message>
        <source>can be undone</source>
        <translation>rückgängig zu machen</translation>
    </message>
    <message>
        <source>undone</source>
        <translation>rückgängig gemacht</translation>
    </message>
    <message>
        <source>partly undone</source>
        <translation>teilweise rückgängig gemacht</translation>
    </message>
    <message>
        <source>“%1” could not be undone</source>
        <translation>„%1“ konnte nicht rückgängig gemacht werden</translation>
    </message>
    <message>
        <source>“%1” was undone</source>
        <translation>„%1“ wurde rückgängig gemacht</translation>
    </message>
    <message>
        <source>“%1” was undone in part</source>
        <translation>„%1“ wurde teilweise rückgängig gemacht</translation>
    </message>
    <message>
        <source>%1: deleted for good</source>
        <translation>%1: endgültig gelöscht</translation>
    </message>
    <message>
        <source>There is no action %1 in the journal.</source>
        <translation>Im Protokoll gibt es keine Aktion %1.</translation>
    </message>
    <message>
        <source>Action %1 was undone already.</source>
        <translation>Aktion %1 wurde bereits rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Action %1 (%2) cannot be undone.</source>
        <translation>Aktion %1 (%2) kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) (was|were) given back.</source>
        <translation>
            <numerusform>%Ln Datei wurde zurückgegeben.</numerusform>
            <numerusform>%Ln Dateien wurden zurückgegeben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) (was|were) left as (it is|they are), because (it|they) changed since.</source>
        <translation>
            <numerusform>%Ln Datei wurde belassen, wie sie ist, weil sie sich seither geändert hat.</numerusform>
            <numerusform>%Ln Dateien wurden belassen, wie sie sind, weil sie sich seither geändert haben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) (was|were) deleted for good and cannot be given back.</source>
        <translation>
            <numerusform>%Ln Datei wurde endgültig gelöscht und kann nicht zurückgegeben werden.</numerusform>
            <numerusform>%Ln Dateien wurden endgültig gelöscht und können nicht zurückgegeben werden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WindowTitles</name>
    <message>
        <source>by duration</source>
        <translation>nach Dauer</translation>
    </message>
    <message>
        <source>by name</source>
        <translation>nach Name</translation>
    </message>
    <message>
        <source>by attribute</source>
        <translation>nach Attribut</translation>
    </message>
    <message>
        <source>by %1</source>
        <translation>nach %1</translation>
    </message>
    <message>
        <source>by content</source>
        <translation>nach Inhalt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln location(s)</source>
        <translation>
            <numerusform>%Ln Ort</numerusform>
            <numerusform>%Ln Orte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 — %2 — %3</source>
        <translation>%1 – %2 – %3</translation>
    </message>
    <message>
        <source>by similar pictures</source>
        <translation>nach ähnlichen Bildern</translation>
    </message>
    <message>
        <source>by same recording</source>
        <translation>nach gleicher Aufnahme</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finds duplicate files.</source>
        <translation>Findet doppelte Dateien.</translation>
    </message>
    <message>
        <source>Add the paths to the locations and search them at once.</source>
        <translation>Die Pfade zu den Orten hinzufügen und sofort durchsuchen.</translation>
    </message>
    <message>
        <source>Files to look up, or folders to add.</source>
        <translation>Dateien zum Nachschlagen oder Ordner zum Hinzufügen.</translation>
    </message>
</context>
<context>
    <name>selfsame::AddAttributeDialog</name>
    <message>
        <source>Add Attribute</source>
        <translation>Attribut hinzufügen</translation>
    </message>
    <message>
        <source>kMDItem…</source>
        <translation>kMDItem…</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>&amp;Schlüssel:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Typ:</translation>
    </message>
    <message>
        <source>&amp;Remove All Added Attributes</source>
        <translation>Alle hinzugefügten Attribute &amp;entfernen</translation>
    </message>
</context>
<context>
    <name>selfsame::AppDelegate</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Search the ticked locations for duplicates (Ctrl+Return)</source>
        <translation>Die angehakten Orte nach Duplikaten durchsuchen (Strg+Eingabe)</translation>
    </message>
    <message>
        <source>Search &amp;in:</source>
        <translation>Suchen &amp;in:</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen …</translation>
    </message>
    <message>
        <source>Add folders or drives to search</source>
        <translation>Ordner oder Laufwerke zum Durchsuchen hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Remove the selected locations from the list; nothing is deleted</source>
        <translation>Die ausgewählten Orte aus der Liste entfernen; es wird nichts gelöscht</translation>
    </message>
    <message>
        <source>Drop folders or files here to add them.</source>
        <translation>Ordner oder Dateien hierher ziehen, um sie hinzuzufügen.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>&amp;Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Add &amp;Files…</source>
        <translation>&amp;Dateien hinzufügen …</translation>
    </message>
    <message>
        <source>Choose Files to Find Duplicates Of</source>
        <translation>Dateien wählen, deren Duplikate gesucht werden</translation>
    </message>
    <message>
        <source>&amp;Search for Duplicates</source>
        <translation>Nach Duplikaten &amp;suchen</translation>
    </message>
    <message>
        <source>Open &amp;Results…</source>
        <translation>&amp;Ergebnisse öffnen …</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>Aus der &amp;Liste entfernen</translation>
    </message>
    <message>
        <source>Show in File &amp;Manager</source>
        <translation>Im Datei&amp;manager anzeigen</translation>
    </message>
    <message>
        <source>Clear Digest &amp;Cache</source>
        <translation>Prüfsummen-&amp;Zwischenspeicher leeren</translation>
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
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Welcome to [NSApp]</source>
        <translation>&amp;Willkommen bei [NSApp]</translation>
    </message>
    <message>
        <source>Reset &amp;Do Not Show Again</source>
        <translation>„Nicht mehr an&amp;zeigen“ zurücksetzen</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>&amp;Rückmeldung senden …</translation>
    </message>
    <message>
        <source>&amp;About [NSApp]</source>
        <translation>Ü&amp;ber [NSApp]</translation>
    </message>
    <message>
        <source>About [NSApp]</source>
        <translation>Über [NSApp]</translation>
    </message>
    <message>
        <source>&lt;h3&gt;[NSApp] %1&lt;/h3&gt;&lt;p&gt;Finds duplicate files by content, duration, name or metadata, and helps you keep one copy.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Credits&lt;/b&gt;&lt;br&gt;Built with Qt, OpenSSL (SHA-512) and xxHash. Icons follow your desktop&apos;s theme.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;[NSApp] %1&lt;/h3&gt;&lt;p&gt;Findet doppelte Dateien nach Inhalt, Dauer, Name oder Metadaten und hilft Ihnen, eine Kopie zu behalten.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Danksagung&lt;/b&gt;&lt;br&gt;Erstellt mit Qt, OpenSSL (SHA-512) und xxHash. Die Symbole folgen dem Thema Ihrer Arbeitsumgebung.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>The digest cache could not be cleared.</source>
        <translation>Der Prüfsummen-Zwischenspeicher konnte nicht geleert werden.</translation>
    </message>
    <message>
        <source>Check the permissions of %1.</source>
        <translation>Prüfen Sie die Zugriffsrechte von %1.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Skipping some files or subfolders while comparing folders can lead to false positives</source>
        <translation>Werden beim Vergleichen von Ordnern einige Dateien oder Unterordner übersprungen, können Ordner fälschlich als gleich gelten</translation>
    </message>
    <message>
        <source>You may however choose to ignore .app extensions if you don’t want to compare applications (which are actually file packages).</source>
        <translation>Sie können jedoch die Endung .app ignorieren, wenn Sie keine Anwendungen vergleichen möchten (die eigentlich Dateipakete sind).</translation>
    </message>
    <message>
        <source>Got It!</source>
        <translation>Verstanden!</translation>
    </message>
    <message>
        <source>Please select the folder or drive in which to search for duplicates of individual files.</source>
        <translation>Bitte wählen Sie den Ordner oder das Laufwerk, in dem nach Duplikaten einzelner Dateien gesucht werden soll.</translation>
    </message>
    <message>
        <source>Grant Access…</source>
        <translation>Zugriff gewähren …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Zugriff gewähren</translation>
    </message>
    <message>
        <source>Test Online…</source>
        <translation>Online testen …</translation>
    </message>
    <message>
        <source>Choose Folders to Search</source>
        <translation>Ordner zum Durchsuchen wählen</translation>
    </message>
    <message>
        <source>The results could not be opened.</source>
        <translation>Die Ergebnisse konnten nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>No duplicate found for “%1” in the current results</source>
        <translation>Kein Duplikat von „%1“ in den aktuellen Ergebnissen gefunden</translation>
    </message>
    <message>
        <source>Do you want to add this file to the list of locations to search?</source>
        <translation>Möchten Sie diese Datei zur Liste der zu durchsuchenden Orte hinzufügen?</translation>
    </message>
    <message>
        <source>Add Serarch Location</source>
        <translation>Suchort hinzufügen</translation>
    </message>
    <message>
        <source>Note that you should not enable this location in the list (leave the checkbox unticked): it only tells Selfsame where copies of the files may be, and is not searched itself.

You can designate more such folders by adding them to the folder list and leaving their checkboxes unticked.</source>
        <translation>Aktivieren Sie diesen Ort in der Liste nicht (lassen Sie das Kästchen leer): Er sagt Selfsame nur, wo Kopien der Dateien liegen können, und wird selbst nicht durchsucht.

Weitere solche Ordner können Sie angeben, indem Sie sie zur Ordnerliste hinzufügen und ihre Kästchen leer lassen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 — %Ln (search|searches) running</source>
        <translation>
            <numerusform>%1 – %Ln Suche läuft</numerusform>
            <numerusform>%1 – %Ln Suchen laufen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>selfsame::AttributeChooser</name>
    <message>
        <source>Metadata Attributes</source>
        <translation>Metadaten-Attribute</translation>
    </message>
    <message>
        <source>Search names and descriptions, or type extensions: jpg mp3</source>
        <translation>Namen und Beschreibungen durchsuchen oder Dateiendungen eingeben: jpg mp3</translation>
    </message>
    <message>
        <source>Show attribute &amp;keys</source>
        <translation>Attribut&amp;schlüssel anzeigen</translation>
    </message>
    <message>
        <source>&amp;Add Attribute…</source>
        <translation>Attribut &amp;hinzufügen …</translation>
    </message>
</context>
<context>
    <name>selfsame::AttributeChooserModel</name>
    <message>
        <source>In Menu</source>
        <translation>Im Menü</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
</context>
<context>
    <name>selfsame::AutoSelectSheet</name>
    <message>
        <source>Select Automatically</source>
        <translation>Automatisch auswählen</translation>
    </message>
    <message>
        <source>Select &amp;Automatically…</source>
        <translation>&amp;Automatisch auswählen …</translation>
    </message>
    <message>
        <source>&amp;Unhide</source>
        <translation>&amp;Einblenden</translation>
    </message>
    <message>
        <source>Copies in one folder named like the first with a suffix added (“name copy.ext” beside “name.ext”)</source>
        <translation>Kopien in einem Ordner, die wie die erste heißen, mit einem Zusatz („name copy.ext“ neben „name.ext“)</translation>
    </message>
    <message>
        <source>Copies in one folder whatever their names, keeping</source>
        <translation>Kopien in einem Ordner, wie auch immer sie heißen; behalten wird</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopien</translation>
    </message>
    <message>
        <source>the oldest</source>
        <translation>die älteste</translation>
    </message>
    <message>
        <source>the newest</source>
        <translation>die neueste</translation>
    </message>
    <message>
        <source>directly inside</source>
        <translation>direkt in</translation>
    </message>
    <message>
        <source>anywhere inside</source>
        <translation>irgendwo in</translation>
    </message>
    <message>
        <source>not directly inside</source>
        <translation>nicht direkt in</translation>
    </message>
    <message>
        <source>anywhere outside</source>
        <translation>irgendwo außerhalb von</translation>
    </message>
    <message>
        <source>Drop a folder here</source>
        <translation>Einen Ordner hierher ziehen</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>whatever their date</source>
        <translation>unabhängig vom Datum</translation>
    </message>
    <message>
        <source>when later than a copy elsewhere by</source>
        <translation>wenn später als eine Kopie anderswo, nach</translation>
    </message>
    <message>
        <source>when earlier than a copy elsewhere by</source>
        <translation>wenn früher als eine Kopie anderswo, nach</translation>
    </message>
    <message>
        <source>when dated as a copy elsewhere by</source>
        <translation>wenn gleich datiert wie eine Kopie anderswo, nach</translation>
    </message>
    <message>
        <source>having the tag</source>
        <translation>mit dem Schlagwort</translation>
    </message>
    <message>
        <source>having any tag</source>
        <translation>mit irgendeinem Schlagwort</translation>
    </message>
    <message>
        <source>not having the tag</source>
        <translation>ohne das Schlagwort</translation>
    </message>
    <message>
        <source>having no tag</source>
        <translation>ohne Schlagwort</translation>
    </message>
    <message>
        <source>Hide the copies that are neither selected nor kept</source>
        <translation>Kopien ausblenden, die weder ausgewählt noch behalten werden</translation>
    </message>
    <message>
        <source>Kept: the copies %1 the folder.|Kept: the copies %1 the folder, and those that the date condition spares.</source>
        <translation>Behalten: die Kopien %1 dem Ordner.|Behalten: die Kopien %1 dem Ordner und die, die die Datumsbedingung verschont.</translation>
    </message>
    <message>
        <source>Kept: the copies %1.</source>
        <translation>Behalten: die Kopien %1.</translation>
    </message>
    <message>
        <source>In every group of duplicates, select:</source>
        <translation>In jeder Gruppe von Duplikaten auswählen:</translation>
    </message>
    <message>
        <source>by</source>
        <translation>nach</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>dem Ordner</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>creation date</source>
        <translation>Erstellungsdatum</translation>
    </message>
    <message>
        <source>modification date</source>
        <translation>Änderungsdatum</translation>
    </message>
    <message>
        <source>last used date</source>
        <translation>Datum der letzten Verwendung</translation>
    </message>
    <message>
        <source>date added</source>
        <translation>Hinzufügedatum</translation>
    </message>
    <message>
        <source>Choose the Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>All but the largest picture (the most pixels, then the largest file)</source>
        <translation>Alle außer dem größten Bild (die meisten Pixel, dann die größte Datei)</translation>
    </message>
    <message>
        <source>All but the best recording (the highest bit rate, then a lossless format)</source>
        <translation>Alle außer der besten Aufnahme (die höchste Bitrate, dann ein verlustfreies Format)</translation>
    </message>
    <message>
        <source>Every folder whose files all have copies in another folder, keeping that folder</source>
        <translation>Jeden Ordner, dessen Dateien alle Kopien in einem anderen Ordner haben, und diesen anderen behalten</translation>
    </message>
</context>
<context>
    <name>selfsame::Dupes</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>Enumerating files…</source>
        <translation>Dateien werden aufgezählt …</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Select one item above to see its group here.</source>
        <translation>Wählen Sie oben ein Objekt, um hier seine Gruppe zu sehen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln item(s) could not be read</source>
        <translation>
            <numerusform>%Ln Objekt konnte nicht gelesen werden</numerusform>
            <numerusform>%Ln Objekte konnten nicht gelesen werden</numerusform>
        </translation>
    </message>
    <message>
        <source>These folders could not be listed, so nothing in them was searched:</source>
        <translation>Diese Ordner konnten nicht aufgelistet werden, daher wurde in ihnen nichts durchsucht:</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more (all of them under Show Details)</source>
        <translation>
            <numerusform>und %Ln weiterer (alle unter „Details anzeigen“)</numerusform>
            <numerusform>und %Ln weitere (alle unter „Details anzeigen“)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be read to compare their content.</source>
        <translation>
            <numerusform>%Ln Datei konnte nicht gelesen werden, um ihren Inhalt zu vergleichen.</numerusform>
            <numerusform>%Ln Dateien konnten nicht gelesen werden, um ihren Inhalt zu vergleichen.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open &amp;Results…</source>
        <translation>&amp;Ergebnisse öffnen …</translation>
    </message>
    <message>
        <source>&amp;Save Results…</source>
        <translation>Ergebnisse &amp;speichern …</translation>
    </message>
    <message>
        <source>The results could not be saved.</source>
        <translation>Die Ergebnisse konnten nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xportieren …</translation>
    </message>
    <message>
        <source>The list could not be exported.</source>
        <translation>Die Liste konnte nicht exportiert werden.</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>Fenster s&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Filter…</source>
        <translation>&amp;Filtern …</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>&amp;Where Are the Duplicates?</source>
        <translation>&amp;Wo liegen die Duplikate?</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Spalten</translation>
    </message>
    <message>
        <source>List &amp;Size</source>
        <translation>Listen&amp;größe</translation>
    </message>
    <message>
        <source>List &amp;Font Size</source>
        <translation>Sc&amp;hriftgröße der Liste</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>A&amp;ktionen</translation>
    </message>
    <message>
        <source>&amp;Item</source>
        <translation>&amp;Element</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Show in File &amp;Manager</source>
        <translation>Im Datei&amp;manager anzeigen</translation>
    </message>
    <message>
        <source>Show Location in Apple &amp;Maps</source>
        <translation>Ort in Apple &amp;Karten anzeigen</translation>
    </message>
    <message>
        <source>Show Location in &amp;Google Maps</source>
        <translation>Ort in &amp;Google Maps anzeigen</translation>
    </message>
    <message>
        <source>Show Location in &amp;OpenStreetMap</source>
        <translation>Ort in &amp;OpenStreetMap anzeigen</translation>
    </message>
    <message>
        <source>Stop the search and show the groups found so far</source>
        <translation>Die Suche anhalten und die bisher gefundenen Gruppen zeigen</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausieren</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Pausiert: %1</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Fortsetzen</translation>
    </message>
</context>
<context>
    <name>selfsame::DupesActions</name>
    <message>
        <source>Move to &amp;Trash%1</source>
        <translation>In den &amp;Papierkorb verschieben%1</translation>
    </message>
    <message>
        <source>&amp;Delete Immediately%1…</source>
        <translation>So&amp;fort löschen%1 …</translation>
    </message>
    <message>
        <source>&amp;Put Back from Trash</source>
        <translation>Aus dem Papierkorb &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>Replace by &amp;Clones…</source>
        <translation>Durch &amp;Klone ersetzen …</translation>
    </message>
    <message>
        <source>View Cloning Plan</source>
        <translation>Klonplan anzeigen</translation>
    </message>
    <message>
        <source>Do Not Replace</source>
        <translation>Nicht ersetzen</translation>
    </message>
    <message>
        <source>Replace with Alias</source>
        <translation>Durch Alias ersetzen</translation>
    </message>
    <message>
        <source>Replace with Symbolic Link</source>
        <translation>Durch symbolischen Link ersetzen</translation>
    </message>
    <message>
        <source>Replace with Relative Symbolic Link</source>
        <translation>Durch relativen symbolischen Link ersetzen</translation>
    </message>
    <message>
        <source>Replace with Hard Link</source>
        <translation>Durch harten Link ersetzen</translation>
    </message>
    <message>
        <source>Replace with Clone</source>
        <translation>Durch Klon ersetzen</translation>
    </message>
    <message>
        <source>Replacement while Alt is held</source>
        <translation>Ersatz bei gedrückter Alt-Taste</translation>
    </message>
    <message>
        <source>Replacement of deleted duplicates</source>
        <translation>Ersatz gelöschter Duplikate</translation>
    </message>
    <message numerus="yes">
        <source>Moves the %Ln file(s) selected in the bottom list to the Trash</source>
        <translation>
            <numerusform>Verschiebt die %Ln in der unteren Liste ausgewählte Datei in den Papierkorb</numerusform>
            <numerusform>Verschiebt die %Ln in der unteren Liste ausgewählten Dateien in den Papierkorb</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moves the %Ln file(s) selected in the top list to the Trash</source>
        <translation>
            <numerusform>Verschiebt die %Ln in der oberen Liste ausgewählte Datei in den Papierkorb</numerusform>
            <numerusform>Verschiebt die %Ln in der oberen Liste ausgewählten Dateien in den Papierkorb</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deletes the %Ln file(s) selected in the bottom list</source>
        <translation>
            <numerusform>Löscht die %Ln in der unteren Liste ausgewählte Datei</numerusform>
            <numerusform>Löscht die %Ln in der unteren Liste ausgewählten Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deletes the %Ln file(s) selected in the top list</source>
        <translation>
            <numerusform>Löscht die %Ln in der oberen Liste ausgewählte Datei</numerusform>
            <numerusform>Löscht die %Ln in der oberen Liste ausgewählten Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone: %n file(s) given back.</source>
        <translation>
            <numerusform>Rückgängig gemacht: %n Datei zurückgegeben.</numerusform>
            <numerusform>Rückgängig gemacht: %n Dateien zurückgegeben.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>selfsame::DuplicateSearch</name>
    <message>
        <source>No file has been found with the specified spotlight attribute.</source>
        <translation>Es wurde keine Datei mit dem angegebenen Spotlight-Attribut gefunden.</translation>
    </message>
    <message>
        <source>No time-based file has been found.</source>
        <translation>Es wurde keine zeitbasierte Datei gefunden.</translation>
    </message>
    <message>
        <source>No duplicate files were found.</source>
        <translation>Es wurden keine doppelten Dateien gefunden.</translation>
    </message>
    <message>
        <source>Make sure the folder you are searching contains some files with this attribute in a format whose metadata can be read.</source>
        <translation>Stellen Sie sicher, dass der durchsuchte Ordner Dateien mit diesem Attribut enthält, in einem Format, dessen Metadaten gelesen werden können.</translation>
    </message>
    <message>
        <source>Make sure the folder you are searching contains some audio or video files.</source>
        <translation>Stellen Sie sicher, dass der durchsuchte Ordner Audio- oder Videodateien enthält.</translation>
    </message>
    <message>
        <source>No similar pictures were found.</source>
        <translation>Es wurden keine ähnlichen Bilder gefunden.</translation>
    </message>
    <message>
        <source>Some pictures could not be decoded; they are listed as unreadable.</source>
        <translation>Einige Bilder konnten nicht dekodiert werden; sie sind als nicht lesbar aufgeführt.</translation>
    </message>
    <message>
        <source>No recordings were found twice.</source>
        <translation>Es wurde keine Aufnahme doppelt gefunden.</translation>
    </message>
    <message>
        <source>Some recordings could not be decoded; they are listed as unreadable.</source>
        <translation>Einige Aufnahmen konnten nicht dekodiert werden; sie sind als nicht lesbar aufgeführt.</translation>
    </message>
</context>
<context>
    <name>selfsame::FilterBar</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>Codecs</source>
        <translation>Codecs</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>enthält</translation>
    </message>
    <message>
        <source>contains the word</source>
        <translation>enthält das Wort</translation>
    </message>
    <message>
        <source>begins with</source>
        <translation>beginnt mit</translation>
    </message>
    <message>
        <source>ends with</source>
        <translation>endet mit</translation>
    </message>
    <message>
        <source>is</source>
        <translation>ist</translation>
    </message>
    <message>
        <source>contains any of</source>
        <translation>enthält eines von</translation>
    </message>
    <message>
        <source>contains any of the words</source>
        <translation>enthält eines der Wörter</translation>
    </message>
    <message>
        <source>matches</source>
        <translation>passt auf</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>enthält nicht</translation>
    </message>
    <message>
        <source>does not contain the word</source>
        <translation>enthält nicht das Wort</translation>
    </message>
    <message>
        <source>does not begin with</source>
        <translation>beginnt nicht mit</translation>
    </message>
    <message>
        <source>does not end with</source>
        <translation>endet nicht mit</translation>
    </message>
    <message>
        <source>is not</source>
        <translation>ist nicht</translation>
    </message>
    <message>
        <source>contains none of</source>
        <translation>enthält keines von</translation>
    </message>
    <message>
        <source>contains none of the words</source>
        <translation>enthält keines der Wörter</translation>
    </message>
    <message>
        <source>does not match</source>
        <translation>passt nicht auf</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Invalid regular expression</source>
        <translation>Ungültiger regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Try the expression in an online tester</source>
        <translation>Den Ausdruck in einem Online-Tester ausprobieren</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Last opened</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Attributes changed</source>
        <translation>Attribute geändert</translation>
    </message>
    <message>
        <source>newer than</source>
        <translation>neuer als</translation>
    </message>
    <message>
        <source>older than</source>
        <translation>älter als</translation>
    </message>
    <message>
        <source>any time</source>
        <translation>jederzeit</translation>
    </message>
    <message>
        <source>days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>weeks</source>
        <translation>Wochen</translation>
    </message>
    <message>
        <source>months</source>
        <translation>Monate</translation>
    </message>
    <message>
        <source>years</source>
        <translation>Jahre</translation>
    </message>
</context>
<context>
    <name>selfsame::OverviewWindow</name>
    <message>
        <source>Where are the duplicates?</source>
        <translation>Wo liegen die Duplikate?</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message numerus="yes">
        <source>%1 could be freed in %Ln folder(s), each tile sized by its share. Click a folder to show only its duplicates in the lists.</source>
        <translation>
            <numerusform>%1 könnten in %Ln Ordner frei werden, jede Kachel nach ihrem Anteil bemessen. Klicken Sie auf einen Ordner, um in den Listen nur seine Duplikate zu zeigen.</numerusform>
            <numerusform>%1 könnten in %Ln Ordnern frei werden, jede Kachel nach ihrem Anteil bemessen. Klicken Sie auf einen Ordner, um in den Listen nur seine Duplikate zu zeigen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>selfsame::PreviewPane</name>
    <message>
        <source>Select one item to see it here.</source>
        <translation>Wählen Sie ein Objekt, um es hier zu sehen.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>On disk</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Pixel size</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Codecs</source>
        <translation>Codecs</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Wird geladen …</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Keine Vorschau</translation>
    </message>
</context>
<context>
    <name>selfsame::PutBackDialogue</name>
    <message>
        <source>Please select “%1” to grant the access</source>
        <translation>Bitte wählen Sie „%1“, um den Zugriff zu gewähren</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Zugriff gewähren</translation>
    </message>
</context>
<context>
    <name>selfsame::ResultTableModel</name>
    <message>
        <source>%1
Changed or gone since these results were saved</source>
        <translation>%1
Seit dem Speichern dieser Ergebnisse geändert oder verschwunden</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Pixel Size</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Codecs</source>
        <translation>Codecs</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Last Opened</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Date Added</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>Attributes Changed</source>
        <translation>Attribute geändert</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Cluster Size</source>
        <translation>Clustergröße</translation>
    </message>
    <message>
        <source>Items whose values lie within the tolerance of each other, counted around the first item of each cluster.</source>
        <translation>Objekte, deren Werte innerhalb der Toleranz zueinander liegen, gezählt um das erste Objekt jedes Clusters.</translation>
    </message>
    <message>
        <source>How each duplicate relates to the selected item: the item itself, a hard link of it, a clone sharing its storage, a copy on another volume, or a proven duplicate.</source>
        <translation>Wie jedes Duplikat zum ausgewählten Objekt steht: das Objekt selbst, ein harter Link darauf, ein Klon, der seinen Speicher teilt, eine Kopie auf einem anderen Datenträger oder ein nachgewiesenes Duplikat.</translation>
    </message>
    <message>
        <source>Similarity</source>
        <translation>Ähnlichkeit</translation>
    </message>
    <message>
        <source>How alike each item is to the first item of its group.</source>
        <translation>Wie ähnlich jedes Objekt dem ersten Objekt seiner Gruppe ist.</translation>
    </message>
    <message>
        <source>How alike each copy is to the item selected above.</source>
        <translation>Wie ähnlich jede Kopie dem oben ausgewählten Objekt ist.</translation>
    </message>
</context>
<context>
    <name>selfsame::SearchOptionsPanel</name>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Metadata attribute</source>
        <translation>Metadaten-Attribut</translation>
    </message>
    <message>
        <source>Find duplicates &amp;by:</source>
        <translation>Duplikate finden &amp;nach:</translation>
    </message>
    <message>
        <source>Filters:</source>
        <translation>Filter:</translation>
    </message>
    <message>
        <source>Ignore the header of &amp;MP4 files (compare the media only)</source>
        <translation>Kopfdaten von &amp;MP4-Dateien ignorieren (nur die Medien vergleichen)</translation>
    </message>
    <message>
        <source>Also find duplicate f&amp;olders</source>
        <translation>Auch doppelte &amp;Ordner finden</translation>
    </message>
    <message>
        <source>Ignore files that already share their storage (&amp;clones)</source>
        <translation>Dateien ignorieren, die ihren Speicher schon teilen (&amp;Klone)</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>&amp;Toleranz:</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Ignore &amp;extensions</source>
        <translation>Dateiendungen ignorie&amp;ren</translation>
    </message>
    <message>
        <source>Ignore s&amp;uffixes:</source>
        <translation>Namens&amp;zusätze ignorieren:</translation>
    </message>
    <message>
        <source>Comma-separated endings left out of names before comparing; # stands for a number from 1 to 99, ## for any number. Blanks count.</source>
        <translation>Durch Komma getrennte Endungen, die vor dem Vergleich aus den Namen entfernt werden; # steht für eine Zahl von 1 bis 99, ## für jede Zahl. Leerzeichen zählen mit.</translation>
    </message>
    <message>
        <source>&amp;Attribute:</source>
        <translation>&amp;Attribut:</translation>
    </message>
    <message>
        <source>Skip hidde&amp;n files and folders</source>
        <translation>&amp;Versteckte Dateien und Ordner überspringen</translation>
    </message>
    <message>
        <source>&amp;Limit folder depth to</source>
        <translation>Ordnertiefe &amp;begrenzen auf</translation>
    </message>
    <message>
        <source>levels</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>S&amp;kip names matching:</source>
        <translation>&amp;Passende Namen überspringen:</translation>
    </message>
    <message>
        <source>One per line: *.tmp, Thumbs.db, /regex/</source>
        <translation>Eines pro Zeile: *.tmp, Thumbs.db, /regex/</translation>
    </message>
    <message>
        <source>E&amp;xtensions:</source>
        <translation>&amp;Dateiendungen:</translation>
    </message>
    <message>
        <source>Only</source>
        <translation>Nur</translation>
    </message>
    <message>
        <source>All but</source>
        <translation>Alle außer</translation>
    </message>
    <message>
        <source>jpg heic mov</source>
        <translation>jpg heic mov</translation>
    </message>
    <message>
        <source>File si&amp;ze from</source>
        <translation>Datei&amp;größe von</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>keine Grenze</translation>
    </message>
    <message>
        <source>A number with an optional unit: B, kB, MB, GB, TB or KiB, MiB, GiB, TiB</source>
        <translation>Eine Zahl mit optionaler Einheit: B, kB, MB, GB, TB oder KiB, MiB, GiB, TiB</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>Skip files that I cannot modify or &amp;delete</source>
        <translation>Dateien überspringen, die ich nicht ändern oder &amp;löschen kann</translation>
    </message>
    <message>
        <source>Skip files not o&amp;wned by %1</source>
        <translation>Dateien überspringen, die nicht %1 geh&amp;ören</translation>
    </message>
    <message>
        <source>Find duplicates of single files anywhere on their dri&amp;ve</source>
        <translation>Duplikate einzelner Dateien überall auf ihrem &amp;Laufwerk suchen</translation>
    </message>
    <message>
        <source>When a location is a single file, its duplicates are searched for across its whole drive.</source>
        <translation>Ist ein Ort eine einzelne Datei, werden ihre Duplikate auf dem ganzen Laufwerk gesucht.</translation>
    </message>
    <message>
        <source>Other Attributes…</source>
        <translation>Weitere Attribute …</translation>
    </message>
    <message>
        <source>Similar pictures</source>
        <translation>Ähnliche Bilder</translation>
    </message>
    <message>
        <source>Same recording</source>
        <translation>Gleiche Aufnahme</translation>
    </message>
    <message>
        <source> %</source>
        <translation>&#xa0;%</translation>
    </message>
    <message>
        <source>S&amp;imilarity:</source>
        <translation>Ähnli&amp;chkeit:</translation>
    </message>
    <message>
        <source>looser</source>
        <translation>lockerer</translation>
    </message>
    <message>
        <source>stricter</source>
        <translation>strenger</translation>
    </message>
    <message>
        <source>Tell &amp;greyscale copies from colour ones</source>
        <translation>Graustufen-Kopien von &amp;farbigen unterscheiden</translation>
    </message>
    <message>
        <source>When on, a black-and-white copy of a colour picture is not counted as alike.</source>
        <translation>Wenn eingeschaltet, zählt eine Schwarzweiß-Kopie eines Farbbildes nicht als ähnlich.</translation>
    </message>
    <message>
        <source>100 % finds only pictures that cannot be told apart; lower values also find copies scaled, recompressed, cropped or retouched more.</source>
        <translation>100&#xa0;% findet nur Bilder, die sich nicht unterscheiden lassen; niedrigere Werte finden auch Kopien, die stärker skaliert, neu komprimiert, beschnitten oder retuschiert wurden.</translation>
    </message>
    <message>
        <source>100 % finds only recordings that cannot be told apart; lower values also find copies encoded at lower quality or cut differently.</source>
        <translation>100&#xa0;% findet nur Aufnahmen, die sich nicht unterscheiden lassen; niedrigere Werte finden auch Kopien, die in geringerer Qualität kodiert oder anders geschnitten wurden.</translation>
    </message>
    <message>
        <source>Also find folders whose files all exist elsewhere</source>
        <translation>Auch Ordner finden, deren Dateien alle anderswo vorhanden sind</translation>
    </message>
    <message>
        <source>Finds each folder whose files, by content, all have copies inside one other searched folder, whatever their names and layout, such as an old backup inside a newer, reorganised one.</source>
        <translation>Findet jeden Ordner, dessen Dateien dem Inhalt nach alle Kopien in einem anderen durchsuchten Ordner haben, gleich unter welchen Namen und wo, etwa eine alte Sicherung in einer neueren, umgeräumten.</translation>
    </message>
</context>
<context>
    <name>selfsame::TreemapView</name>
    <message>
        <source>Other folders</source>
        <translation>Andere Ordner</translation>
    </message>
    <message numerus="yes">
        <source>%1
%Ln duplicate(s), %2 reclaimable</source>
        <translation>
            <numerusform>%1
%Ln Duplikat, %2 freigebbar</numerusform>
            <numerusform>%1
%Ln Duplikate, %2 freigebbar</numerusform>
        </translation>
    </message>
    <message>
        <source>No duplicates left to free space from.</source>
        <translation>Keine Duplikate mehr, durch die Speicherplatz frei werden kann.</translation>
    </message>
</context>
<context>
    <name>selfsame::UndoCommands</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Undo &amp;History</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>%1 &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>No file actions yet</source>
        <translation>Noch keine Dateiaktionen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>selfsame::WelcomePanel</name>
    <message>
        <source>Welcome to [NSApp]</source>
        <translation>Willkommen bei [NSApp]</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Welcome to [NSApp]&lt;/h3&gt;&lt;p&gt;[NSApp] finds files with the same content in the folders and drives you choose, and helps you decide which copies to keep.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Add folders to the list: drag them from your file manager, or click &lt;b&gt;Add…&lt;/b&gt;.&lt;/li&gt;&lt;li&gt;Tick the ones to search and choose what makes two files duplicates.&lt;/li&gt;&lt;li&gt;Click &lt;b&gt;Search&lt;/b&gt;. Each search opens its own window; several can run at once.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Searching only reads your files. Nothing is changed until you say so in a results window.&lt;/p&gt;&lt;p&gt;From a file manager, &lt;i&gt;Open With [NSApp]&lt;/i&gt; on a file shows its duplicates, and &lt;i&gt;Find Duplicates Here&lt;/i&gt; on a folder searches it at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Willkommen bei [NSApp]&lt;/h3&gt;&lt;p&gt;[NSApp] findet Dateien mit gleichem Inhalt in den Ordnern und Laufwerken, die Sie wählen, und hilft Ihnen zu entscheiden, welche Kopien Sie behalten.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Fügen Sie der Liste Ordner hinzu: Ziehen Sie sie aus Ihrem Dateimanager hierher oder klicken Sie auf &lt;b&gt;Hinzufügen …&lt;/b&gt;.&lt;/li&gt;&lt;li&gt;Haken Sie die zu durchsuchenden an und wählen Sie, was zwei Dateien zu Duplikaten macht.&lt;/li&gt;&lt;li&gt;Klicken Sie auf &lt;b&gt;Suchen&lt;/b&gt;. Jede Suche öffnet ihr eigenes Fenster; mehrere können gleichzeitig laufen.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Die Suche liest Ihre Dateien nur. Nichts wird geändert, bis Sie es in einem Ergebnisfenster veranlassen.&lt;/p&gt;&lt;p&gt;Im Dateimanager zeigt &lt;i&gt;Öffnen mit [NSApp]&lt;/i&gt; die Duplikate einer Datei, und &lt;i&gt;Duplikate hier finden&lt;/i&gt; durchsucht einen Ordner sofort.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Show this window when [NSApp] starts</source>
        <translation>Dieses Fenster beim &amp;Start von [NSApp] anzeigen</translation>
    </message>
</context>
</TS>
