<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="af_ZA">
<context>
    <name>Admin</name>
    <message>
        <location filename="../admin/admin.ui" line="+6"/>
        <source>Quorel - Admin</source>
        <translation>Quorel - Admin</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;SysInfo</source>
        <translation>&amp;Stelselinligting</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Quorel System Information</source>
        <translation>Quorel-stelselinligting</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Practice</source>
        <translation>Praktyk</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Title Line 1 is the Practice Name</source>
        <translation>Titelreël 1 is die praktyk se naam</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Title Line 2</source>
        <translation>Titelreël 2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Title Line 3</source>
        <translation>Titelreël 3</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Invoice Footers</source>
        <translation>Faktuurvoetskrifte</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Receipt Footer</source>
        <translation>Kwitansievoetskrif</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Statement Footers</source>
        <translation>Staatvoetskrifte</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Hand Over Footer</source>
        <translation>Oorhandigingsvoetskrif</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Label Info</source>
        <translation>Etiketinligting</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+13"/>
        <source>Tax Levy</source>
        <translation>Belastingkoers</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+13"/>
        <source>Tax Name</source>
        <translation>Belastingnaam</translation>
    </message>
    <message>
        <location line="+10"/>
        <location filename="../admin/breeds.cpp" line="+43"/>
        <source>Alt Lang</source>
        <translation>Alt. taal</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>UPDATE</source>
        <translation>OPDATEER</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>&amp;Dispense</source>
        <translation>&amp;Uitreiking</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Quorel Table Management</source>
        <translation>Quorel-tabelbestuur</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+464"/>
        <location filename="../admin/salesreports.cpp" line="+212"/>
        <location filename="../admin/stockreports.cpp" line="+133"/>
        <location line="+16"/>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <location line="-460"/>
        <location line="+470"/>
        <source>Goods</source>
        <translation>Goedere</translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Hospital</source>
        <translation>Hospitaal</translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Consult</source>
        <translation>Konsultasie</translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Diagnosis</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Injection</source>
        <translation>Inspuiting</translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+356"/>
        <location line="+114"/>
        <source>Lab</source>
        <translation>Laboratorium</translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Medication</source>
        <translation>Medikasie</translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Proc</source>
        <translation>Prosedure</translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Vaccination</source>
        <translation>Inenting</translation>
    </message>
    <message>
        <location line="-466"/>
        <source>Enable Pricing Assistant</source>
        <translation>Gebruik die prysassistent</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Highlight Stock Inconsistencies</source>
        <translation>Merk voorraadafwykings</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Analyse Stock On Select</source>
        <translation>Ontleed voorraad by keuse</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+13"/>
        <location line="+427"/>
        <location filename="../admin/stockreports.cpp" line="-52"/>
        <location line="+114"/>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <location line="-439"/>
        <location line="+17"/>
        <location line="+142"/>
        <location line="+279"/>
        <location filename="../admin/breeds.cpp" line="-1"/>
        <location filename="../admin/clientreports.cpp" line="+178"/>
        <location filename="../admin/salesreports.cpp" line="-28"/>
        <location line="+28"/>
        <location filename="../admin/stockreports.cpp" line="-61"/>
        <source>Description</source>
        <translation>Beskrywing</translation>
    </message>
    <message>
        <location line="-437"/>
        <location line="+26"/>
        <location line="+141"/>
        <location filename="../admin/stockreports.cpp" line="+61"/>
        <source>Schedule</source>
        <translation>Skedule</translation>
    </message>
    <message>
        <location line="-166"/>
        <location line="+38"/>
        <source>Unit Of Measure</source>
        <translation>Maateenheid</translation>
    </message>
    <message>
        <location line="-37"/>
        <location line="+47"/>
        <source>Cost Price</source>
        <translation>Kosprys</translation>
    </message>
    <message>
        <location line="-46"/>
        <location line="+56"/>
        <source>Sales Price</source>
        <translation>Verkoopprys</translation>
    </message>
    <message>
        <location line="-55"/>
        <location line="+61"/>
        <source>Stock Level</source>
        <translation>Voorraadvlak</translation>
    </message>
    <message>
        <location line="-60"/>
        <location line="+78"/>
        <source>On Order</source>
        <translation>Op bestelling</translation>
    </message>
    <message>
        <location line="-77"/>
        <source>Order Date</source>
        <translation>Besteldatum</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+100"/>
        <source>Active</source>
        <translation>Aktief</translation>
    </message>
    <message>
        <location line="-86"/>
        <source>Alt Description</source>
        <translation>Alt. beskrywing</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>S0</source>
        <translation>S0</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S1</source>
        <translation>S1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S2</source>
        <translation>S2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S3</source>
        <translation>S3</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S4</source>
        <translation>S4</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S5</source>
        <translation>S5</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S6</source>
        <translation>S6</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S7</source>
        <translation>S7</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Alt Unit</source>
        <translation>Alt. eenheid</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Mark-up</source>
        <translation>Opslag</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Selling price including taxes; press Enter to check it against cost and mark-up</source>
        <translation>Verkoopprys met belasting ingesluit; druk Enter om dit teen die kosprys en opslag na te gaan</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Re-order @</source>
        <translation>Herbestel @</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Setting of -1 disables stock control</source>
        <translation>&apos;n Waarde van -1 skakel voorraadbeheer af</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>To Qty.</source>
        <translation>Bestel tot</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>A value of 0 disables stock control</source>
        <translation>&apos;n Waarde van 0 skakel voorraadbeheer af</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Supplier</source>
        <translation>Verskaffer</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>DTR</source>
        <translation>DTH</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Days to the reminder</source>
        <translation>Dae tot die herinnering</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Tax 1</source>
        <translation>Belasting 1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tax 2</source>
        <translation>Belasting 2</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+276"/>
        <location line="+33"/>
        <source>New</source>
        <translation>Nuut</translation>
    </message>
    <message>
        <location line="-306"/>
        <location line="+276"/>
        <source>Update</source>
        <translation>Opdateer</translation>
    </message>
    <message>
        <location line="-273"/>
        <location line="+276"/>
        <location line="+33"/>
        <source>Delete</source>
        <translation>Skrap</translation>
    </message>
    <message>
        <location line="-306"/>
        <location line="+276"/>
        <source>Clear</source>
        <translation>Maak skoon</translation>
    </message>
    <message>
        <location line="-273"/>
        <source>Search</source>
        <translation>Soek</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>If the &lt;b&gt;Code&lt;/b&gt; field has focus search for that code, else search for the &lt;b&gt;Description&lt;/b&gt;</source>
        <translation>As die &lt;b&gt;Kode&lt;/b&gt;-veld die fokus het, soek na daardie kode, anders na die &lt;b&gt;Beskrywing&lt;/b&gt;</translation>
    </message>
    <message>
        <location line="+3"/>
        <location filename="../admin/stocktrace.cpp" line="+25"/>
        <source>Trace</source>
        <translation>Naspoor</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Quick / Detailed Stock trace on current item.</source>
        <translation>Vinnige / volledige voorraadnaspoor van die huidige item.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Remarks</source>
        <translation>Opmerkings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add remarks and queries to items at dispense time</source>
        <translation>Opmerkings en vrae wat by die uitreiking van die item verskyn</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Permissions</source>
        <translation>&amp;Toestemmings</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Quorel User Permissions</source>
        <translation>Quorel-gebruikertoestemmings</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Users</source>
        <translation>Gebruikers</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+5"/>
        <source>Class</source>
        <translation>Klas</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Dispense</source>
        <translation>Uitreiking</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Utility</source>
        <translation>Nutsfunksies</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Procedure Schedule</source>
        <translation>Prosedureskedule</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hospital Schedule</source>
        <translation>Hospitaalskedule</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stock Schedule</source>
        <translation>Voorraadskedule</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stock</source>
        <translation>Voorraad</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Permission</source>
        <translation>Toestemming</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>User Code</source>
        <translation>Gebruikerskode</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Initials</source>
        <translation>Voorletters</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+61"/>
        <location filename="../admin/salesreports.cpp" line="+33"/>
        <location line="+2"/>
        <source>Commission</source>
        <translation>Kommissie</translation>
    </message>
    <message>
        <location line="-58"/>
        <source>Commission in percent (0 to 100)</source>
        <translation>Kommissie in persent (0 tot 100)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Enable Diary</source>
        <translation>Gebruik die dagboek</translation>
    </message>
    <message>
        <location line="+5"/>
        <location filename="../admin/users.cpp" line="+214"/>
        <source>Add Permission</source>
        <translation>Voeg toestemming by</translation>
    </message>
    <message>
        <location line="+3"/>
        <location filename="../admin/users.cpp" line="+25"/>
        <source>Delete Permission</source>
        <translation>Skrap toestemming</translation>
    </message>
    <message>
        <location line="+4"/>
        <location filename="../admin/users.cpp" line="-148"/>
        <location line="+51"/>
        <source>New User</source>
        <translation>Nuwe gebruiker</translation>
    </message>
    <message>
        <location line="+3"/>
        <location filename="../admin/users.cpp" line="+45"/>
        <source>Update User</source>
        <translation>Opdateer gebruiker</translation>
    </message>
    <message>
        <location line="+3"/>
        <location filename="../admin/users.cpp" line="-23"/>
        <source>Delete User</source>
        <translation>Skrap gebruiker</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Reports</source>
        <translation>&amp;Verslae</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Quorel Report Writer</source>
        <translation>Quorel-verslagskrywer</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Goods Performance</source>
        <translation>Goedereprestasie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hospital Performance</source>
        <translation>Hospitaalprestasie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Consult Performance</source>
        <translation>Konsultasieprestasie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Diagnosis Performance</source>
        <translation>Diagnoseprestasie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Injection Performance</source>
        <translation>Inspuitingprestasie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lab Performance</source>
        <translation>Laboratoriumprestasie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Medication Performance</source>
        <translation>Medikasieprestasie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Proc Performance</source>
        <translation>Prosedureprestasie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vaccination Performance</source>
        <translation>Inentingprestasie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>New Clients History</source>
        <translation>Nuwe kliënte per maand</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>New Clients Detailed</source>
        <translation>Nuwe kliënte in besonderhede</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Client Purchases</source>
        <translation>Kliënte se aankope</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Monthly Client Expenditure</source>
        <translation>Maandelikse kliëntbesteding</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Full Client Expenditure</source>
        <translation>Volledige kliëntbesteding</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Client Debt/Credit</source>
        <translation>Kliëntskuld/-krediet</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Bad Debtors</source>
        <translation>Slegte skuldenaars</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stock Levels</source>
        <translation>Voorraadvlakke</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stock Values</source>
        <translation>Voorraadwaardes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Daily Activity</source>
        <translation>Daaglikse aktiwiteit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pending Invoices</source>
        <translation>Hangende fakture</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All Clients</source>
        <translation>Alle kliënte</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Personnel Performance</source>
        <translation>Personeelprestasie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Drug Levels</source>
        <translation>Medisynevlakke</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Start</source>
        <translation>Begin</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>End</source>
        <translation>Einde</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Process</source>
        <translation>Verwerk</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Export</source>
        <translation>Voer uit</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Graph</source>
        <translation>Grafiek</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Print</source>
        <translation>Druk</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Breeds</source>
        <translation>&amp;Rasse</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Add Breed</source>
        <translation>Voeg ras by</translation>
    </message>
    <message>
        <location line="+3"/>
        <location filename="../admin/breeds.cpp" line="+90"/>
        <location line="+4"/>
        <source>Delete Breed</source>
        <translation>Skrap ras</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Suppliers</source>
        <translation>V&amp;erskaffers</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Quorel Supplier Management</source>
        <translation>Quorel-verskafferbestuur</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+12"/>
        <source>Company</source>
        <translation>Maatskappy</translation>
    </message>
    <message>
        <location line="-11"/>
        <location line="+16"/>
        <source>Contact</source>
        <translation>Kontak</translation>
    </message>
    <message>
        <location line="-15"/>
        <location line="+20"/>
        <source>Email</source>
        <translation>E-pos</translation>
    </message>
    <message>
        <location line="-19"/>
        <location line="+24"/>
        <source>Tel</source>
        <translation>Telefoon</translation>
    </message>
    <message>
        <location line="-23"/>
        <location line="+28"/>
        <source>Fax</source>
        <translation>Faks</translation>
    </message>
    <message>
        <location line="-27"/>
        <location line="+32"/>
        <source>Cell</source>
        <translation>Sel</translation>
    </message>
    <message>
        <location line="-31"/>
        <location line="+36"/>
        <location filename="../admin/clientreports.cpp" line="+102"/>
        <location line="+24"/>
        <source>Postal Address</source>
        <translation>Posadres</translation>
    </message>
    <message>
        <location line="-35"/>
        <location line="+42"/>
        <source>Collection Address</source>
        <translation>Afhaaladres</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Lab Service</source>
        <translation>Laboratoriumdiens</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>&amp;AutoProc</source>
        <translation>&amp;Outoprosedures</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Quorel Automated Procedure Management</source>
        <translation>Quorel-outoprosedurebestuur</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Procedures</source>
        <translation>Prosedures</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Name of the procedure; type a new name and press Rename</source>
        <translation>Naam van die prosedure; tik &apos;n nuwe naam en druk Hernoem</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Rename</source>
        <translation>Hernoem</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+23"/>
        <location filename="../admin/salesreports.cpp" line="-34"/>
        <location filename="../admin/stockreports.cpp" line="-113"/>
        <location line="+51"/>
        <location line="+63"/>
        <source>Quantity</source>
        <translation>Hoeveelheid</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Unit Price</source>
        <translation>Eenheidsprys</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Charge</source>
        <translation>Heffing</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Charged</source>
        <translation>Gehef</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Charge for Item</source>
        <translation>Hef vir die item</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Add Item</source>
        <translation>Voeg item by</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Update Item</source>
        <translation>Opdateer item</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Delete Item</source>
        <translation>Skrap item</translation>
    </message>
    <message>
        <location line="+4"/>
        <location filename="../admin/salesreports.cpp" line="+60"/>
        <source>Total</source>
        <translation>Totaal</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>0.00</source>
        <translation>0.00</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Help</source>
        <translation>Hulp</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Help on this program</source>
        <translation>Hulp met hierdie program</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>EXIT</source>
        <translation>VERLAAT</translation>
    </message>
    <message>
        <location filename="../admin/autoprocs.cpp" line="+31"/>
        <source>quantity</source>
        <translation>hoeveelheid</translation>
    </message>
    <message>
        <location line="+156"/>
        <source>New Auto Procedure</source>
        <translation>Nuwe outoprosedure</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enter the new Auto Procedure name</source>
        <translation>Tik die naam van die nuwe outoprosedure</translation>
    </message>
    <message>
        <location line="+19"/>
        <location line="+2"/>
        <source>Update Automated Procedure</source>
        <translation>Opdateer outoprosedure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Confirm that you wish to rename the Automated Procedure &apos;%1&apos; to &apos;%2&apos;</source>
        <translation>Bevestig dat u die outoprosedure &apos;%1&apos; na &apos;%2&apos; wil hernoem</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Delete Automated Procedure</source>
        <translation>Skrap outoprosedure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Confirm that you wish to delete the Automated Procedure &apos;%1&apos; from the system</source>
        <translation>Bevestig dat u die outoprosedure &apos;%1&apos; uit die stelsel wil skrap</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>New Procedure Composition</source>
        <translation>Nuwe item in die prosedure</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Confirm that you wish to add the Automated Procedure Composition &apos;%1&apos;</source>
        <translation>Bevestig dat u &apos;%1&apos; by die outoprosedure wil voeg</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Update Composition</source>
        <translation>Opdateer die inhoud</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>You must highlight a Composition entry to Update</source>
        <translation>U moet &apos;n item van die prosedure merk om dit op te dateer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update Procedure Composition</source>
        <translation>Opdateer item in die prosedure</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Confirm that you wish to update the Automated Procedure Composition &apos;%1&apos;</source>
        <translation>Bevestig dat u die item &apos;%1&apos; van die outoprosedure wil opdateer</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Delete Composition</source>
        <translation>Skrap uit die inhoud</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>You must highlight a Composition entry to delete</source>
        <translation>U moet &apos;n item van die prosedure merk om dit te skrap</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Delete Procedure Composition</source>
        <translation>Skrap item uit die prosedure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Confirm that you wish to delete the Automated Procedure Composition &apos;%1&apos; from the Procedure</source>
        <translation>Bevestig dat u die item &apos;%1&apos; uit die outoprosedure wil skrap</translation>
    </message>
    <message>
        <location filename="../admin/breeds.cpp" line="-64"/>
        <source>Breeds</source>
        <translation>Rasse</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>You must highlight a breed to delete</source>
        <translation>U moet &apos;n ras merk om dit te skrap</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Confirm that you will delete the breed &apos;%1&apos;</source>
        <translation>Bevestig dat u die ras &apos;%1&apos; wil skrap</translation>
    </message>
    <message>
        <location filename="../admin/practice.cpp" line="+94"/>
        <location filename="../admin/tabsupport.cpp" line="+93"/>
        <source>Operation cancelled</source>
        <translation>Handeling gekanselleer</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Quorel Admin</source>
        <translation>Quorel Admin</translation>
    </message>
    <message>
        <location line="-29"/>
        <source>first tax rate</source>
        <translation>eerste belastingkoers</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>second tax rate</source>
        <translation>tweede belastingkoers</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Confirm that you wish to update the system information as shown ?</source>
        <translation>Bevestig dat u die stelselinligting soos getoon wil opdateer?</translation>
    </message>
    <message>
        <location line="-3"/>
        <location line="+4"/>
        <source>Update System Information</source>
        <translation>Opdateer stelselinligting</translation>
    </message>
    <message>
        <location filename="../admin/pricing.cpp" line="+104"/>
        <location filename="../admin/reportoutput.cpp" line="+279"/>
        <source>Quorel</source>
        <translation>Quorel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&lt;b&gt;Price calculation conflict&lt;/b&gt;&lt;br&gt;&lt;font color=&quot;red&quot;&gt;&lt;em&gt;Selling at %1 : Calculated as %2&lt;/em&gt;&lt;/font&gt;&lt;br&gt;Would you like to update the &lt;b&gt;Cost&lt;/b&gt; or &lt;b&gt;Markup&lt;/b&gt;&lt;br&gt;You may also choose to ignore the issue</source>
        <translation>&lt;b&gt;Prysberekening verskil&lt;/b&gt;&lt;br&gt;&lt;font color=&quot;red&quot;&gt;&lt;em&gt;Verkoop teen %1 : Bereken as %2&lt;/em&gt;&lt;/font&gt;&lt;br&gt;Wil u die &lt;b&gt;Kosprys&lt;/b&gt; of die &lt;b&gt;Opslag&lt;/b&gt; aanpas?&lt;br&gt;U kan die verskil ook ignoreer</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignoreer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>&amp;Cost</source>
        <translation>&amp;Kosprys</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>&amp;Markup</source>
        <translation>&amp;Opslag</translation>
    </message>
    <message>
        <location filename="../admin/productedit.cpp" line="+27"/>
        <source>&lt;font color=&quot;red&quot;&gt;No supplier has been selected.&lt;/font&gt;&lt;p&gt;This is not recommended and may cause problems with reports and orders.&lt;p&gt;Do you wish to continue ?</source>
        <translation>&lt;font color=&quot;red&quot;&gt;Geen verskaffer is gekies nie.&lt;/font&gt;&lt;p&gt;Dit word nie aanbeveel nie en kan probleme met verslae en bestellings veroorsaak.&lt;p&gt;Wil u voortgaan?</translation>
    </message>
    <message>
        <location line="+38"/>
        <location line="+147"/>
        <location line="+2"/>
        <location line="+3"/>
        <source>New Entry</source>
        <translation>Nuwe inskrywing</translation>
    </message>
    <message>
        <location line="-151"/>
        <source>The product %1 is already allocated Code %2</source>
        <translation>Die produk %1 het reeds die kode %2</translation>
    </message>
    <message>
        <location line="+57"/>
        <source>cost</source>
        <translation>kosprys</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>mark-up</source>
        <translation>opslag</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>selling price</source>
        <translation>verkoopprys</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>re-order level</source>
        <translation>herbestelvlak</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>quantity to order up to</source>
        <translation>hoeveelheid om tot te bestel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>quantity on order</source>
        <translation>hoeveelheid op bestelling</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>number of days to the reminder</source>
        <translation>aantal dae tot die herinnering</translation>
    </message>
    <message>
        <location line="+58"/>
        <source>Deletion of item from stock.</source>
        <translation>Item uit voorraad geskrap.</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Confirm you wish to add product %1 with code %2</source>
        <translation>Bevestig dat u die produk %1 met kode %2 wil byvoeg</translation>
    </message>
    <message>
        <location line="+26"/>
        <location line="+6"/>
        <location line="+4"/>
        <location line="+2"/>
        <location line="+4"/>
        <source>Modify Entry</source>
        <translation>Wysig inskrywing</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>You must highlight an entry to modify</source>
        <translation>U moet &apos;n inskrywing merk om dit te wysig</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>You may not have a blank Code or Description</source>
        <translation>Die kode en die beskrywing mag nie leeg wees nie</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Confirm that you will update the highlighted entry
%1, Code %2
with the values shown ?</source>
        <translation>Bevestig dat u die gemerkte inskrywing
%1, kode %2
met die getoonde waardes wil opdateer?</translation>
    </message>
    <message>
        <location line="+20"/>
        <location line="+8"/>
        <source>Delete Entry</source>
        <translation>Skrap inskrywing</translation>
    </message>
    <message>
        <location line="-8"/>
        <source>You must highlight an entry to delete</source>
        <translation>U moet &apos;n inskrywing merk om dit te skrap</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Confirm that you will delete the highlighted entry
%1, Code %2
from the system?</source>
        <translation>Bevestig dat u die gemerkte inskrywing
%1, kode %2
uit die stelsel wil skrap?</translation>
    </message>
    <message>
        <location filename="../admin/products.cpp" line="+224"/>
        <source>Search By Code</source>
        <translation>Soek volgens kode</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>&lt;b&gt;&lt;/b&gt;No entry with code &lt;b&gt;%1&lt;/b&gt; located</source>
        <translation>&lt;b&gt;&lt;/b&gt;Geen inskrywing met kode &lt;b&gt;%1&lt;/b&gt; gevind nie</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+7"/>
        <source>Search By Description</source>
        <translation>Soek volgens beskrywing</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>&lt;b&gt;&lt;/b&gt;The exact match of &lt;b&gt;%1&lt;/b&gt; was not found.&lt;p&gt;The closest match &lt;b&gt;%2&lt;/b&gt; has been chosen</source>
        <translation>&lt;b&gt;&lt;/b&gt;Geen presiese ooreenkoms met &lt;b&gt;%1&lt;/b&gt; is gevind nie.&lt;p&gt;Die naaste ooreenkoms, &lt;b&gt;%2&lt;/b&gt;, is gekies</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&lt;b&gt;&lt;/b&gt;No entry matching &lt;b&gt;%1&lt;/b&gt; found</source>
        <translation>&lt;b&gt;&lt;/b&gt;Geen inskrywing stem met &lt;b&gt;%1&lt;/b&gt; ooreen nie</translation>
    </message>
    <message>
        <location filename="../admin/stocktrace.cpp" line="-3"/>
        <source>Stock Level Calculation Mismatch
%1 - %2 
Received: %3
Dispensed: %4
On Hand: %5</source>
        <translation>Berekende voorraadvlak verskil
%1 - %2 
Ontvang: %3
Uitgereik: %4
Op hande: %5</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 - %2 
Received: %3
Dispensed: %4
On Hand: %5</source>
        <translation>%1 - %2 
Ontvang: %3
Uitgereik: %4
Op hande: %5</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close</source>
        <translation>Sluit</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Adjust</source>
        <translation>Pas aan</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stock level Calculation</source>
        <translation>Berekening van die voorraadvlak</translation>
    </message>
    <message>
        <location filename="../admin/suppliers.cpp" line="+96"/>
        <source>Add Supplier</source>
        <translation>Voeg verskaffer by</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Confirm that you will add %1
to the list of suppliers with the details shown.</source>
        <translation>Bevestig dat u %1
met die getoonde besonderhede by die lys verskaffers wil voeg.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Update Supplier</source>
        <translation>Opdateer verskaffer</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+22"/>
        <source>You have not selected a valid supplier. Try again.</source>
        <translation>U het nie &apos;n geldige verskaffer gekies nie. Probeer weer.</translation>
    </message>
    <message>
        <location line="-14"/>
        <source>Confirm that you will update %1
in the list of suppliers with the details shown.</source>
        <translation>Bevestig dat u %1
in die lys verskaffers met die getoonde besonderhede wil opdateer.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Delete Supplier</source>
        <translation>Skrap verskaffer</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Confirm that you will delete %1
from the list of suppliers.</source>
        <translation>Bevestig dat u %1
uit die lys verskaffers wil skrap.</translation>
    </message>
    <message>
        <location filename="../admin/users.cpp" line="-60"/>
        <source>commission</source>
        <translation>kommissie</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Enter the new users name</source>
        <translation>Tik die nuwe gebruiker se naam</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Enter the users initials</source>
        <translation>Tik die gebruiker se voorletters</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Enter the user code</source>
        <translation>Tik die gebruikerskode</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>You must have a user selected to perform a delete</source>
        <translation>U moet &apos;n gebruiker kies om te skrap</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>You may not delete the administrator</source>
        <translation>U mag nie die administrateur skrap nie</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Confirm that you will remove user &apos;%1&apos; from the system</source>
        <translation>Bevestig dat u die gebruiker &apos;%1&apos; uit die stelsel wil verwyder</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>You must have a user selected to perform an update</source>
        <translation>U moet &apos;n gebruiker kies om op te dateer</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Confirm that you will update user &apos;%1&apos;
to have a new user Code %2,Initials %3, and Commission %4</source>
        <translation>Bevestig dat u die gebruiker &apos;%1&apos;
wil opdateer na gebruikerskode %2, voorletters %3 en kommissie %4</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>New Permission</source>
        <translation>Nuwe toestemming</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>You must have a user selected to allocate a permission</source>
        <translation>U moet &apos;n gebruiker kies om &apos;n toestemming toe te ken</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>User %3 already has permission &apos;%1 : %2&apos;</source>
        <translation>Die gebruiker %3 het reeds die toestemming &apos;%1 : %2&apos;</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Confirm that you will add  &apos;%1 : %2&apos; to user &apos;%3&apos;</source>
        <translation>Bevestig dat u &apos;%1 : %2&apos; aan die gebruiker &apos;%3&apos; wil toeken</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>To delete a permission it must be selected in the list</source>
        <translation>Kies eers die toestemming in die lys om dit te skrap</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Confirm that you will remove &apos;%1 : %2&apos; from user &apos;%3&apos;</source>
        <translation>Bevestig dat u &apos;%1 : %2&apos; van die gebruiker &apos;%3&apos; wil verwyder</translation>
    </message>
    <message>
        <location filename="../admin/clientreports.cpp" line="-252"/>
        <source>Home Tel.</source>
        <translation>Tel. (huis)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Work Tel.</source>
        <translation>Tel. (werk)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cellular.</source>
        <translation>Selfoon</translation>
    </message>
    <message>
        <location line="+38"/>
        <location line="+110"/>
        <location line="+47"/>
        <location line="+30"/>
        <location line="+25"/>
        <location filename="../admin/salesreports.cpp" line="-61"/>
        <location filename="../admin/stockreports.cpp" line="-64"/>
        <location line="+48"/>
        <source>Client</source>
        <translation>Kliënt</translation>
    </message>
    <message>
        <location line="-212"/>
        <location line="+110"/>
        <location line="+48"/>
        <location line="+29"/>
        <location filename="../admin/salesreports.cpp" line="+0"/>
        <location filename="../admin/stockreports.cpp" line="+0"/>
        <source>Acc No.</source>
        <translation>Rek. nr.</translation>
    </message>
    <message>
        <location line="-93"/>
        <source>New Clients</source>
        <translation>Nuwe kliënte</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Initial Visit</source>
        <translation>Eerste besoek</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+104"/>
        <source>Email Address</source>
        <translation>E-posadres</translation>
    </message>
    <message>
        <location line="-93"/>
        <source>Number of Clients</source>
        <translation>Aantal kliënte</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Processing Owner Expenditure, this could take a while, please wait..</source>
        <translation>Verwerk kliëntbesteding, dit kan &apos;n rukkie duur, wag asseblief..</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Expenditure for %1</source>
        <translation>Besteding vir %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Processing Full Owner Expenditure, this will take a while, please wait..</source>
        <translation>Verwerk volledige kliëntbesteding, dit sal &apos;n ruk duur, wag asseblief..</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Total Expenditure to date.</source>
        <translation>Totale besteding tot op datum.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+55"/>
        <location filename="../admin/salesreports.cpp" line="+86"/>
        <source>Grand Total</source>
        <translation>Groottotaal</translation>
    </message>
    <message>
        <location line="-46"/>
        <location line="+28"/>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <location line="-27"/>
        <source>Curr.</source>
        <translation>Huidig</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>30</source>
        <translation>30</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>60</source>
        <translation>60</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>90</source>
        <translation>90</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>120+</source>
        <translation>120+</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>zzz- Debt Totals -zzz</source>
        <translation>zzz- Skuldtotale -zzz</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>zzz- Credit Totals -zzz</source>
        <translation>zzz- Krediettotale -zzz</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+24"/>
        <source>Identity No.</source>
        <translation>ID-nommer</translation>
    </message>
    <message>
        <location line="-22"/>
        <location line="+23"/>
        <source>Physical Address</source>
        <translation>Fisiese adres</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Acc. #</source>
        <translation>Rek. #</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Last Visit</source>
        <translation>Laaste besoek</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Unknown</source>
        <translation>Onbekend</translation>
    </message>
    <message>
        <location filename="../admin/reportoutput.cpp" line="-14"/>
        <source>Export Results</source>
        <translation>Voer resultate uit</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>You must highlight entries to export</source>
        <translation>U moet inskrywings merk om uit te voer</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Can&apos;t create %1</source>
        <translation>Kan nie %1 skep nie</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Graph Results</source>
        <translation>Grafiek van resultate</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>It makes no sense to graph this report</source>
        <translation>Dit maak nie sin om &apos;n grafiek van hierdie verslag te teken nie</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>You must highlight entries to chart</source>
        <translation>U moet inskrywings merk om &apos;n grafiek te teken</translation>
    </message>
    <message>
        <location filename="../admin/noteeditor.cpp" line="+41"/>
        <source>Note Editor</source>
        <translation>Notaredigeerder</translation>
    </message>
    <message>
        <location filename="../admin/salesreports.cpp" line="-122"/>
        <source>Quorel Reports</source>
        <translation>Quorel-verslae</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Select mode for Report</source>
        <translation>Kies die modus vir die verslag</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Daily</source>
        <translation>Daagliks</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+3"/>
        <source>Monthly</source>
        <translation>Maandeliks</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Processing %1</source>
        <translation>Verwerk %1</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>Goods Sales Commission Report</source>
        <translation>Kommissie op goedereverkope</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Sales Person</source>
        <translation>Verkoopspersoon</translation>
    </message>
    <message>
        <location line="-2"/>
        <location line="+2"/>
        <location line="+27"/>
        <source>Total Sales.</source>
        <translation>Totale verkope.</translation>
    </message>
    <message>
        <location line="-5"/>
        <source>Personnel</source>
        <translation>Personeel</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Personnel Performance Report</source>
        <translation>Personeelprestasieverslag</translation>
    </message>
    <message>
        <location filename="../admin/stockreports.cpp" line="-99"/>
        <location line="+114"/>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <location line="-114"/>
        <location line="+52"/>
        <location line="+62"/>
        <source>UOM</source>
        <translation>Eenheid</translation>
    </message>
    <message>
        <location line="-114"/>
        <source>Price</source>
        <translation>Prys</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cost</source>
        <translation>Kosprys</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+35"/>
        <location line="+79"/>
        <source>Value OH</source>
        <translation>Waarde op hande</translation>
    </message>
    <message>
        <location line="-113"/>
        <source>Quorel Stock Levels</source>
        <translation>Quorel-voorraadvlakke</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Choose a category</source>
        <translation>Kies &apos;n kategorie</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&quot;%1&quot; is not the name of a table.
A category is a product table&apos;s name: letters, digits and underscores, not beginning with a digit.</source>
        <translation>&quot;%1&quot; is nie die naam van &apos;n tabel nie.
&apos;n Kategorie is die naam van &apos;n produktabel: letters, syfers en onderstrepe, nie met &apos;n syfer aan die begin nie.</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+48"/>
        <source>Invoice No.</source>
        <translation>Faktuurnr.</translation>
    </message>
    <message>
        <location line="-48"/>
        <source>Patient</source>
        <translation>Pasiënt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vet</source>
        <translation>Veearts</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Invoices</source>
        <translation>Fakture</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Drug Report</source>
        <translation>Medisyneverslag</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Enter minimum Schedule no.</source>
        <translation>Tik die laagste skedulenommer</translation>
    </message>
    <message>
        <location filename="../admin/tabsupport.cpp" line="+47"/>
        <source>It has %1 characters; the field takes at most %2.</source>
        <translation>Dit het %1 karakters; die veld neem hoogstens %2.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>It takes %1 bytes; the field takes at most %2.</source>
        <translation>Dit beslaan %1 grepe; die veld neem hoogstens %2.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The text &quot;%1&quot; is too long. %2

Shorten it; nothing was saved.</source>
        <translation>Die teks &quot;%1&quot; is te lank. %2

Maak dit korter; niks is gestoor nie.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>The %1 &quot;%2&quot; is not a whole number.</source>
        <translation>Die %1 &quot;%2&quot; is nie &apos;n heelgetal nie.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The %1 &quot;%2&quot; is not a number.</source>
        <translation>Die %1 &quot;%2&quot; is nie &apos;n getal nie.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>

Type digits, with a point before any decimals; an empty field counts as 0. Nothing was saved.</source>
        <translation>

Tik syfers, met &apos;n punt voor enige desimale; &apos;n leë veld tel as 0. Niks is gestoor nie.</translation>
    </message>
</context>
<context>
    <name>NoteEd</name>
    <message>
        <location filename="../widgets/noteed.ui" line="+9"/>
        <source>Note Editor</source>
        <translation>Notaredigeerder</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>&amp;Help</source>
        <translation>&amp;Hulp</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>&amp;Cancel</source>
        <translation>&amp;Kanselleer</translation>
    </message>
    <message>
        <location filename="../widgets/noteed.cpp" line="+23"/>
        <source>&lt;h3&gt;Simple Remarks&lt;/h3&gt;&lt;p&gt;Plain text over as many lines as needed. It is shown when the item is dispensed and may be mixed with parameters.&lt;/p&gt;&lt;h3&gt;Parameters&lt;/h3&gt;&lt;p&gt;A parameter is three fields on one line, each closed by &lt;b&gt;??&lt;/b&gt;: the prelude printed on the invoice before the value, the prompt shown in the input dialog at dispense time, and the default value put into that dialog (it may be empty but is still closed by &lt;b&gt;??&lt;/b&gt;). Text after the last &lt;b&gt;??&lt;/b&gt; is printed after the value.&lt;/p&gt;&lt;p&gt;Examples:&lt;br&gt;&lt;tt&gt;THE HEART RATE WAS ??HEART RATE?? &lt;/tt&gt;&lt;br&gt;&lt;tt&gt;DISPENSED ??QUANTITY (ML) OF XXX DISPENSED??5?? ML XXX&lt;/tt&gt;&lt;/p&gt;&lt;em&gt;Warning, there may not be any spaces after the opening &lt;b&gt;??&lt;/b&gt;&apos;s&lt;/em&gt;</source>
        <translation>&lt;h3&gt;Eenvoudige opmerkings&lt;/h3&gt;&lt;p&gt;Gewone teks oor soveel reëls as nodig. Dit word getoon wanneer die item uitgereik word en kan met parameters gemeng word.&lt;/p&gt;&lt;h3&gt;Parameters&lt;/h3&gt;&lt;p&gt;&apos;n Parameter is drie velde op een reël, elkeen afgesluit met &lt;b&gt;??&lt;/b&gt;: die inleiding wat voor die waarde op die faktuur gedruk word, die vraag wat by uitreiking in die invoervenster verskyn, en die verstekwaarde wat in daardie venster ingevul word (dit mag leeg wees, maar word steeds met &lt;b&gt;??&lt;/b&gt; afgesluit). Teks ná die laaste &lt;b&gt;??&lt;/b&gt; word ná die waarde gedruk.&lt;/p&gt;&lt;p&gt;Voorbeelde:&lt;br&gt;&lt;tt&gt;DIE HARTSPOED WAS ??HARTSPOED?? &lt;/tt&gt;&lt;br&gt;&lt;tt&gt;UITGEREIK ??HOEVEELHEID (ML) XXX UITGEREIK??5?? ML XXX&lt;/tt&gt;&lt;/p&gt;&lt;em&gt;Waarskuwing: daar mag geen spasies ná die openings-&lt;b&gt;??&lt;/b&gt; wees nie&lt;/em&gt;</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Help</source>
        <translation>Hulp</translation>
    </message>
</context>
<context>
    <name>Plot</name>
    <message>
        <location filename="../widgets/plot.cpp" line="+130"/>
        <source>Results</source>
        <translation>Resultate</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Print</source>
        <translation>Druk</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close</source>
        <translation>Sluit</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <location filename="../admin/startup.cpp" line="+74"/>
        <source>Quorel</source>
        <translation>Quorel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Could not load the database driver %1</source>
        <translation>Kon nie die databasisdrywer %1 laai nie</translation>
    </message>
</context>
<context>
    <name>ZrRichText</name>
    <message>
        <location filename="../widgets/zrrichtext.cpp" line="+41"/>
        <source>Quorel Report</source>
        <translation>Quorel-verslag</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>&amp;Print</source>
        <translation>&amp;Druk</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Close</source>
        <translation>&amp;Sluit</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Prev</source>
        <translation>&amp;Vorige</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Next</source>
        <translation>Vo&amp;lgende</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Print All</source>
        <translation>Druk alles</translation>
    </message>
</context>
</TS>
