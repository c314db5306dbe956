<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="af_ZA">
<context>
    <name>Admin</name>
    <message>
        <location filename="../admin/admin.ui" line="+6"/>
        <source>Quorel - Admin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;SysInfo</source>
        <translation>&amp;Stelselinligting</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Quorel System Information</source>
        <translation>Quorel Stelselinligting</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Practice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Title Line 1 is the Practice Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Title Line 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Title Line 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Invoice Footers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Receipt Footer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Statement Footers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Hand Over Footer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Label Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+13"/>
        <source>Tax Levy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+13"/>
        <source>Tax Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+10"/>
        <location filename="../admin/breeds.cpp" line="+49"/>
        <source>Alt Lang</source>
        <translation>Alt Taal</translation>
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
        <translation>Quorel Tabelbestuur</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+464"/>
        <source>Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-460"/>
        <location line="+470"/>
        <source>Goods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Hospital</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Consult</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Diagnosis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Injection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+356"/>
        <location line="+114"/>
        <source>Lab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Medication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Proc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-469"/>
        <location line="+470"/>
        <source>Vaccination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-466"/>
        <source>Enable Pricing Assistant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Highlight Stock Inconsistencies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Analyse Stock On Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+13"/>
        <location line="+427"/>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <location line="-439"/>
        <location line="+17"/>
        <location line="+142"/>
        <location line="+279"/>
        <location filename="../admin/breeds.cpp" line="-1"/>
        <source>Description</source>
        <translation>Beskrywing</translation>
    </message>
    <message>
        <location line="-437"/>
        <location line="+26"/>
        <location line="+141"/>
        <source>Schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-166"/>
        <location line="+38"/>
        <source>Unit Of Measure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-37"/>
        <location line="+47"/>
        <source>Cost Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-46"/>
        <location line="+56"/>
        <source>Sales Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-55"/>
        <location line="+61"/>
        <source>Stock Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-60"/>
        <location line="+78"/>
        <source>On Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-77"/>
        <source>Order Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+100"/>
        <source>Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-86"/>
        <source>Alt Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <source>S0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>S7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Alt Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Mark-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Selling price including taxes; press Enter to check it against cost and mark-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Re-order @</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Setting of -1 disables stock control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>To Qty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>A value of 0 disables stock control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Supplier</source>
        <translation>Verskaffer</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>DTR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Days to the reminder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Tax 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tax 2</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <location filename="../admin/stocktrace.cpp" line="+23"/>
        <source>Trace</source>
        <translation>Spoor</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Quick / Detailed Stock trace on current item.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Remarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add remarks and queries to items at dispense time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Permissions</source>
        <translation>&amp;Toestemmings</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Quorel User Permissions</source>
        <translation>Quorel Gebruikertoestemmings</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+5"/>
        <source>Class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Dispense</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Utility</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Procedure Schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hospital Schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stock Schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Permission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+9"/>
        <source>User Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Initials</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+61"/>
        <source>Commission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-58"/>
        <source>Commission in percent (0 to 100)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Enable Diary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <location filename="../admin/users.cpp" line="+189"/>
        <source>Add Permission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <location filename="../admin/users.cpp" line="+25"/>
        <source>Delete Permission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+4"/>
        <location filename="../admin/users.cpp" line="-123"/>
        <source>New User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <location filename="../admin/users.cpp" line="+73"/>
        <source>Update User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <location filename="../admin/users.cpp" line="-21"/>
        <source>Delete User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Reports</source>
        <translation>&amp;Verslae</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Quorel Report Writer</source>
        <translation>Quorel Verslagskrywer</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Goods Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hospital Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Consult Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Diagnosis Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Injection Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lab Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Medication Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Proc Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vaccination Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>New Clients History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>New Clients Detailed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Client Purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Monthly Client Expenditure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Full Client Expenditure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Client Debt/Credit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Bad Debtors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stock Levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stock Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Daily Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pending Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All Clients</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Personnel Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Drug Levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+6"/>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Breeds</source>
        <translation>&amp;Rasse</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Add Breed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <location filename="../admin/breeds.cpp" line="+36"/>
        <location line="+4"/>
        <source>Delete Breed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Suppliers</source>
        <translation>Ver&amp;skaffers</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Quorel Supplier Management</source>
        <translation>Quorel Verskafferbestuur</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+12"/>
        <source>Company</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-11"/>
        <location line="+16"/>
        <source>Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-15"/>
        <location line="+20"/>
        <source>Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-19"/>
        <location line="+24"/>
        <source>Tel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-23"/>
        <location line="+28"/>
        <source>Fax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-27"/>
        <location line="+32"/>
        <source>Cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-31"/>
        <location line="+36"/>
        <source>Postal Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-35"/>
        <location line="+42"/>
        <source>Collection Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Lab Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+22"/>
        <source>&amp;AutoProc</source>
        <translation>&amp;Outoprosedures</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Quorel Automated Procedure Management</source>
        <translation>Quorel Outoprosedurebestuur</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Procedures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Name of the procedure; type a new name and press Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+23"/>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Unit Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Charged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Charge for Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Add Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Update Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Delete Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>0.00</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Help</source>
        <translation>Hulp</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Help on this program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+4"/>
        <source>EXIT</source>
        <translation>UITGANG</translation>
    </message>
    <message>
        <location filename="../admin/autoprocs.cpp" line="+155"/>
        <source>New Auto Procedure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enter the new Auto Procedure name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Update Automated Procedure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Confirm that you wish to rename the Automated Procedure &apos;%1&apos; to &apos;%2&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Delete Automated Procedure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Confirm that you wish to delete the Automated Procedure &apos;%1&apos; from the system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+12"/>
        <source>New Procedure Composition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Confirm that you wish to add the Automated Procedure Composition &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Update Composition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+0"/>
        <source>You must highlight a Composition entry to Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Update Procedure Composition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Confirm that you wish to update the Automated Procedure Composition &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Delete Composition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+0"/>
        <source>You must highlight a Composition entry to delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Delete Procedure Composition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Confirm that you wish to delete the Automated Procedure Composition &apos;%1&apos; from the Procedure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../admin/breeds.cpp" line="-4"/>
        <source>You must highlight a breed to delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Confirm that you will delete the breed &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../admin/practice.cpp" line="+67"/>
        <location filename="../admin/tabsupport.cpp" line="+33"/>
        <source>Operation cancelled</source>
        <translation>Handeling gekanselleer</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Quorel Admin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Confirm that you wish to update the system information as shown ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update System Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../admin/pricing.cpp" line="+104"/>
        <source>Quorel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&lt;b&gt;Price calculation conflict&lt;/b&gt;&lt;br&gt;&lt;font color=&quot;red&quot;&gt;&lt;em&gt;Selling at %1 : Calculated as %2&lt;/em&gt;&lt;/font&gt;&lt;br&gt;Would you like to update the &lt;b&gt;Cost&lt;/b&gt; or &lt;b&gt;Markup&lt;/b&gt;&lt;br&gt;You may also choose to ignore the issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+0"/>
        <source>&amp;Cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+0"/>
        <source>&amp;Markup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../admin/productedit.cpp" line="+26"/>
        <source>&lt;font color=&quot;red&quot;&gt;No supplier has been selected.&lt;/font&gt;&lt;p&gt;This is not recommended and may cause problems with reports and orders.&lt;p&gt;Do you wish to continue ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+38"/>
        <location line="+126"/>
        <location line="+3"/>
        <source>New Entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-128"/>
        <source>The product %1 is already allocated Code %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+99"/>
        <source>Deletion of item from stock.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Confirm you wish to add product %1 with code %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+25"/>
        <location line="+6"/>
        <location line="+3"/>
        <location line="+5"/>
        <source>Modify Entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-14"/>
        <source>You must highlight an entry to modify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+6"/>
        <source>You may not have a blank Code or Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Confirm that you will update the highlighted entry
%1, Code %2
with the values shown ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+21"/>
        <location line="+8"/>
        <source>Delete Entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-8"/>
        <source>You must highlight an entry to delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Confirm that you will delete the highlighted entry
%1, Code %2
from the system?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../admin/products.cpp" line="+225"/>
        <source>Search By Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+0"/>
        <source>&lt;b&gt;&lt;/b&gt;No entry with code &lt;b&gt;%1&lt;/b&gt; located</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+7"/>
        <source>Search By Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-6"/>
        <source>&lt;b&gt;&lt;/b&gt;The exact match of &lt;b&gt;%1&lt;/b&gt; was not found.&lt;p&gt;The closest match &lt;b&gt;%2&lt;/b&gt; has been chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&lt;b&gt;&lt;/b&gt;No entry matching &lt;b&gt;%1&lt;/b&gt; found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../admin/stocktrace.cpp" line="-3"/>
        <source>Stock Level Calculation Mismatch
%1 - %2 
Received: %3
Dispensed: %4
On Hand: %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 - %2 
Received: %3
Dispensed: %4
On Hand: %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Adjust</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stock level Calculation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../admin/suppliers.cpp" line="+90"/>
        <source>Add Supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Confirm that you will add %1
to the list of suppliers with the details shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Update Supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+24"/>
        <source>You have not selected a valid supplier. Try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-19"/>
        <source>Confirm that you will update %1
in the list of suppliers with the details shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Delete Supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Confirm that you will delete %1
from the list of suppliers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../admin/users.cpp" line="-25"/>
        <source>Enter the new users name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Enter the users initials</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Enter the user code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+21"/>
        <source>You must have a user selected to perform a delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <source>You may not delete the administrator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Confirm that you will remove user &apos;%1&apos; from the system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+13"/>
        <source>You must have a user selected to perform an update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Confirm that you will update user &apos;%1&apos;
to have a new user Code %2,Initials %3, and Commission %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+15"/>
        <source>New Permission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+0"/>
        <source>You must have a user selected to allocate a permission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+15"/>
        <source>User %3 already has permission &apos;%1 : %2&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Confirm that you will add  &apos;%1 : %2&apos; to user &apos;%3&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+13"/>
        <source>To delete a permission it must be selected in the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Confirm that you will remove &apos;%1 : %2&apos; from user &apos;%3&apos;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NoteEd</name>
    <message>
        <location filename="../widgets/noteed.ui" line="+9"/>
        <source>Note Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+18"/>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+20"/>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+13"/>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../widgets/noteed.cpp" line="+23"/>
        <source>&lt;h3&gt;Simple Remarks&lt;/h3&gt;&lt;p&gt;Plain text over as many lines as needed. It is shown when the item is dispensed and may be mixed with parameters.&lt;/p&gt;&lt;h3&gt;Parameters&lt;/h3&gt;&lt;p&gt;A parameter is three fields on one line, each closed by &lt;b&gt;??&lt;/b&gt;: the prelude printed on the invoice before the value, the prompt shown in the input dialog at dispense time, and the default value put into that dialog (it may be empty but is still closed by &lt;b&gt;??&lt;/b&gt;). Text after the last &lt;b&gt;??&lt;/b&gt; is printed after the value.&lt;/p&gt;&lt;p&gt;Examples:&lt;br&gt;&lt;tt&gt;THE HEART RATE WAS ??HEART RATE?? &lt;/tt&gt;&lt;br&gt;&lt;tt&gt;DISPENSED ??QUANTITY (ML) OF XXX DISPENSED??5?? ML XXX&lt;/tt&gt;&lt;/p&gt;&lt;em&gt;Warning, there may not be any spaces after the opening &lt;b&gt;??&lt;/b&gt;&apos;s&lt;/em&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Help</source>
        <translation>Hulp</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <location filename="../admin/startup.cpp" line="+73"/>
        <source>Quorel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Could not load the database driver %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrRichText</name>
    <message>
        <location filename="../widgets/zrrichtext.cpp" line="+22"/>
        <source>Quorel Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Print All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Prev</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
