<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="af">
<context>
    <name>LoginDialog</name>
    <message>
        <location filename="../shared/logindialog.cpp" line="+14"/>
        <source>Quorel Login</source>
        <translation>Quorel-aanmelding</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&lt;b&gt;Quorel&lt;/b&gt; - enter your login id and code</source>
        <translation>&lt;b&gt;Quorel&lt;/b&gt; - tik u aanmeld-ID en kode</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Login id:</source>
        <translation>Aanmeld-ID:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Code:</source>
        <translation>Kode:</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>&amp;Login</source>
        <translation>&amp;Meld aan</translation>
    </message>
</context>
<context>
    <name>TraceAuditDialog</name>
    <message>
        <location filename="../shared/traceaudit.cpp" line="+120"/>
        <source>Stock Trace</source>
        <translation>Voorraadnaspoor</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 is not a product table</source>
        <translation>%1 is nie &apos;n produktabel nie</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Stock Trace of %1 %2</source>
        <translation>Voorraadnaspoor van %1 %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Movement</source>
        <translation>Beweging</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Trace / Invoice</source>
        <translation>Naspoor / faktuur</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Note / Status</source>
        <translation>Nota / status</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Quantity</source>
        <translation>Hoeveelheid</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Counted</source>
        <translation>Getel</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Received</source>
        <translation>Ontvang</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Dispensed</source>
        <translation>Uitgereik</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Received: %1</source>
        <translation>Ontvang: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Dispensed: %1</source>
        <translation>Uitgereik: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>On Hand: %1</source>
        <translation>Op hande: %1</translation>
    </message>
</context>
<context>
    <name>Utility</name>
    <message>
        <location filename="../shared/prompter.cpp" line="+36"/>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location filename="../shared/utility.cpp" line="+66"/>
        <location line="+6"/>
        <source>Quorel</source>
        <translation>Quorel</translation>
    </message>
    <message>
        <location line="-5"/>
        <source>The practice information could not be read from the table SysInfo:
%1</source>
        <translation>Die praktykinligting kon nie uit die tabel SysInfo gelees word nie:
%1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The table SysInfo holds no practice information. Create its row before starting the program.</source>
        <translation>Die tabel SysInfo bevat geen praktykinligting nie. Skep sy ry voordat u die program begin.</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>The login id or code is not correct. Try again.</source>
        <translation>Die aanmeld-ID of kode is nie korrek nie. Probeer weer.</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>The database reported an error.

Driver: %1
Database: %2</source>
        <translation>Die databasis het &apos;n fout gerapporteer.

Drywer: %1
Databasis: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>

Statement:
%1</source>
        <translation>

SQL-stelling:
%1</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+21"/>
        <source>Quorel Database Error</source>
        <translation>Quorel-databasisfout</translation>
    </message>
    <message>
        <location line="-5"/>
        <source>The connection to the server had been closed.</source>
        <translation>Die verbinding met die bediener was reeds gesluit.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The connection has been opened again: you can carry on, and repeat what you were doing.</source>
        <translation>Die verbinding is weer oopgemaak: u kan voortgaan en herhaal wat u besig was om te doen.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server cannot be reached yet. The program tries again with your next action.</source>
        <translation>Die bediener kan nog nie bereik word nie. Die program probeer weer met u volgende handeling.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The database could not be reached, and the change was not made.

%1

The server said:
%2</source>
        <translation>Die databasis kon nie bereik word nie, en die verandering is nie gemaak nie.

%1

Die bediener het gesê:
%2</translation>
    </message>
    <message>
        <location line="+114"/>
        <source>Quorel Admin Help</source>
        <translation>Hulp by Quorel Admin</translation>
    </message>
</context>
</TS>
