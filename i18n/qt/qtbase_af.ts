<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="af_ZA">
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Gids</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Skyf</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-lêer</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Lêer</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Kortpad</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>Step &amp;down</source>
        <translation>Stap &amp;af</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Stap &amp;op</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Kies alles</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Lêer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Maak oop</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Maak oop</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Stoor</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Skyf</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Lêers</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Wys </translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>&apos;%1&apos; is teen skryf beskerm.
Wil u dit tog skrap?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Is u seker u wil &apos;%1&apos; skrap?</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lys van plekke en boekmerke</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Lêer&amp;naam:</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Up</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Right</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Lêergids</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Skrap</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nuwe gids</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Gids</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Ouergids</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nuwe gids</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwyder</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>My rekenaar</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Soek in:</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Skep &apos;n nuwe gids</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-lêer</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Lêers van tipe:</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Vind gids</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Wys &amp;versteekte lêers</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Stoor as</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Gids nie gevind nie.
Gaan asseblief na of die regte gidsnaam gegee is.</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Kantbalk</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Lysaansig</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Kies</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>S&amp;krap</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle lêers (*)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle lêers (*)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Gidse</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Hernoem</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Kon nie die gids skrap nie.</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Gids:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Onbekend</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 bestaan reeds.
Wil u dit vervang?</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorentoe</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Gaan vorentoe</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Gaan na die ouergids</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Onlangse plekke</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Gaan terug</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Skakel oor na besonderhede-aansig</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Skep nuwe gids</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Kortpad</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Besonderhede-aansig</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Lêer nie gevind nie.
Gaan asseblief na of die regte lêernaam gegee is.</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Skakel oor na lysaansig</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Kind</source>
        <translation>Soort</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipe</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>My rekenaar</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Rekenaar</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Ongeldige lêernaam</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Die naam &quot;%1&quot; kan nie gebruik word nie.&lt;/b&gt;&lt;p&gt;Probeer &apos;n ander naam, met minder karakters of sonder leestekens.</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Datum gewysig</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Kanselleer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Stoor</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sluit</translation>
    </message>
</context>
<context>
    <name>QInputDialog</name>
    <message>
        <source>Enter a value:</source>
        <translation>Tik &apos;n waarde:</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Knip</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opieer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Herdoen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ontdoen</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Plak</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Skrap</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Kies alles</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Wys besonderhede...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Versteek besonderhede...</translation>
    </message>
</context>
<context>
    <name>QPageSetupWidget</name>
    <message>
        <source>CC</source>
        <translation>CC</translation>
    </message>
    <message>
        <source>DD</source>
        <translation>DD</translation>
    </message>
    <message>
        <source>in</source>
        <translation>dm</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>P̸</source>
        <translation>P̸</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Vorm</translation>
    </message>
    <message>
        <source>bottom margin</source>
        <translation>ondermarge</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Paper source:</source>
        <translation>Papierbron:</translation>
    </message>
    <message>
        <source>right margin</source>
        <translation>regtermarge</translation>
    </message>
    <message>
        <source>Pica (P̸)</source>
        <translation>Pica (P̸)</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Marges</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Pasgemaak</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Landskap</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>Bladsyuitleg</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breedte:</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Oriëntasie</translation>
    </message>
    <message>
        <source>Didot (DD)</source>
        <translation>Didot (DD)</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portret</translation>
    </message>
    <message>
        <source>Page order:</source>
        <translation>Bladsyvolgorde:</translation>
    </message>
    <message>
        <source>top margin</source>
        <translation>bomarge</translation>
    </message>
    <message>
        <source>left margin</source>
        <translation>linkermarge</translation>
    </message>
    <message>
        <source>Page size:</source>
        <translation>Bladsygrootte:</translation>
    </message>
    <message>
        <source>Cicero (CC)</source>
        <translation>Cicero (CC)</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Omgekeerde portret</translation>
    </message>
    <message>
        <source>Millimeters (mm)</source>
        <translation>Millimeter (mm)</translation>
    </message>
    <message>
        <source>Points (pt)</source>
        <translation>Punte (pt)</translation>
    </message>
    <message>
        <source>Pages per sheet:</source>
        <translation>Bladsye per vel:</translation>
    </message>
    <message>
        <source>Inches (in)</source>
        <translation>Duim (dm)</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Omgekeerde landskap</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Hoogte:</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hulp</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Maak oop</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Stoor</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Staak</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Pas toe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluit</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Herstel</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Probeer weer</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Herstel verstekwaardes</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Kanselleer</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignoreer</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;ee vir almal</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Stoor alles</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Gooi weg</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Ja vir &amp;almal</translation>
    </message>
</context>
<context>
    <name>QPrintDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Even Pages</source>
        <translation>Ewe bladsye</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Druk</translation>
    </message>
    <message>
        <source>&amp;Options &lt;&lt;</source>
        <translation>&amp;Opsies &lt;&lt;</translation>
    </message>
    <message>
        <source>&amp;Options &gt;&gt;</source>
        <translation>&amp;Opsies &gt;&gt;</translation>
    </message>
    <message>
        <source>Left to Right, Top to Bottom</source>
        <translation>Links na regs, bo na onder</translation>
    </message>
    <message>
        <source>Right to Left, Bottom to Top</source>
        <translation>Regs na links, onder na bo</translation>
    </message>
    <message>
        <source>Write PDF file</source>
        <translation>Skryf PDF-lêer</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Druk</translation>
    </message>
    <message>
        <source>1 (1x1)</source>
        <translation>1 (1x1)</translation>
    </message>
    <message>
        <source>2 (2x1)</source>
        <translation>2 (2x1)</translation>
    </message>
    <message>
        <source>4 (2x2)</source>
        <translation>4 (2x2)</translation>
    </message>
    <message>
        <source>6 (2x3)</source>
        <translation>6 (2x3)</translation>
    </message>
    <message>
        <source>9 (3x3)</source>
        <translation>9 (3x3)</translation>
    </message>
    <message>
        <source>16 (4x4)</source>
        <translation>16 (4x4)</translation>
    </message>
    <message>
        <source>Options &apos;Pages Per Sheet&apos; and &apos;Page Set&apos; cannot be used together.
Please turn one of those options off.</source>
        <translation>Die opsies &apos;Bladsye per vel&apos; en &apos;Bladsystel&apos; kan nie saam gebruik word nie.
Skakel asseblief een van die twee af.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to overwrite it?</source>
        <translation>%1 bestaan reeds.
Wil u dit oorskryf?</translation>
    </message>
    <message>
        <source>Left to Right, Bottom to Top</source>
        <translation>Links na regs, onder na bo</translation>
    </message>
    <message>
        <source>Odd Pages</source>
        <translation>Onewe bladsye</translation>
    </message>
    <message>
        <source>Local file</source>
        <translation>Plaaslike lêer</translation>
    </message>
    <message>
        <source>There are conflicts in duplex settings. Do you want to fix them?</source>
        <translation>Die dupleksinstellings bots. Wil u dit regstel?</translation>
    </message>
    <message>
        <source>Print to File (PDF)</source>
        <translation>Druk na lêer (PDF)</translation>
    </message>
    <message>
        <source>Print To File ...</source>
        <translation>Druk na lêer ...</translation>
    </message>
    <message>
        <source>Invalid Pages Definition</source>
        <translation>Ongeldige bladsybepaling</translation>
    </message>
    <message>
        <source>%1 does not follow the correct syntax. Please use &apos;,&apos; to separate ranges and pages, &apos;-&apos; to define ranges and make sure ranges do not intersect with each other.</source>
        <translation>%1 volg nie die regte sintaksis nie. Gebruik &apos;,&apos; om reekse en bladsye te skei, &apos;-&apos; om &apos;n reeks aan te dui, en sorg dat reekse nie oorvleuel nie.</translation>
    </message>
    <message>
        <source>Right to Left, Top to Bottom</source>
        <translation>Regs na links, bo na onder</translation>
    </message>
    <message>
        <source>Bottom to Top, Left to Right</source>
        <translation>Onder na bo, links na regs</translation>
    </message>
    <message>
        <source>The &apos;From&apos; value cannot be greater than the &apos;To&apos; value.</source>
        <translation>Die &apos;Van&apos;-waarde kan nie groter as die &apos;Tot&apos;-waarde wees nie.</translation>
    </message>
    <message>
        <source>All Pages</source>
        <translation>Alle bladsye</translation>
    </message>
    <message>
        <source>Duplex Settings Conflicts</source>
        <translation>Dupleksinstellings bots</translation>
    </message>
    <message>
        <source>%1 is a directory.
Please choose a different file name.</source>
        <translation>%1 is &apos;n gids.
Kies asseblief &apos;n ander lêernaam.</translation>
    </message>
    <message>
        <source>File %1 is not writable.
Please choose a different file name.</source>
        <translation>Lêer %1 kan nie geskryf word nie.
Kies asseblief &apos;n ander lêernaam.</translation>
    </message>
    <message>
        <source>Bottom to Top, Right to Left</source>
        <translation>Onder na bo, regs na links</translation>
    </message>
    <message>
        <source>Top to Bottom, Left to Right</source>
        <translation>Bo na onder, links na regs</translation>
    </message>
    <message>
        <source>Top to Bottom, Right to Left</source>
        <translation>Bo na onder, regs na links</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesDialog</name>
    <message>
        <source>Advanced Option Conflicts</source>
        <translation>Gevorderde opsies bots</translation>
    </message>
    <message>
        <source>Job Options</source>
        <translation>Taakopsies</translation>
    </message>
    <message>
        <source>Page Setup Conflicts</source>
        <translation>Bladsyopstelling bots</translation>
    </message>
    <message>
        <source>There are conflicts in some advanced options. Do you want to fix them?</source>
        <translation>Sommige gevorderde opsies bots. Wil u dit regstel?</translation>
    </message>
    <message>
        <source>There are conflicts in page setup options. Do you want to fix them?</source>
        <translation>Die bladsyopstelling bots. Wil u dit regstel?</translation>
    </message>
    <message>
        <source>Printer Properties</source>
        <translation>Drukkereienskappe</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>to</source>
        <translation>tot</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Vorm</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Print all</source>
        <translation>Druk alles</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Bladsye</translation>
    </message>
    <message>
        <source>Current Page</source>
        <translation>Huidige bladsy</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Keuse</translation>
    </message>
    <message>
        <source>Long side</source>
        <translation>Lang kant</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Afskrifte</translation>
    </message>
    <message>
        <source>Print range</source>
        <translation>Drukreeks</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Kleurmodus</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opsies</translation>
    </message>
    <message>
        <source>Output Settings</source>
        <translation>Afvoerinstellings</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Omgekeerd</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Grysskaal</translation>
    </message>
    <message>
        <source>Short side</source>
        <translation>Kort kant</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sorteer</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>Afskrifte:</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Gee bladsye of reekse, geskei deur kommas. &apos;n Reeks is twee getalle met &apos;n koppelteken tussen hulle. Bv.: 3,5-7,9 druk bladsye 3, 5, 6, 7 en 9.</translation>
    </message>
    <message>
        <source>Pages from</source>
        <translation>Bladsye van</translation>
    </message>
    <message>
        <source>Page Set:</source>
        <translation>Bladsystel:</translation>
    </message>
    <message>
        <source>Duplex Printing</source>
        <translation>Dupleksdruk</translation>
    </message>
</context>
<context>
    <name>QPrintWidget</name>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Vorm</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tipe:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Naam:</translation>
    </message>
    <message>
        <source>Output &amp;file:</source>
        <translation>Afvoer&amp;lêer:</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>&amp;Eienskappe</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Voorskou</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drukker</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Ligging:</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Knip</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opieer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Herdoen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ontdoen</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Plak</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Skrap</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Kies alles</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopieer die &amp;skakel</translation>
    </message>
</context>
</TS>
