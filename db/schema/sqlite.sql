-- Quorel schema, SQLite.
-- Columns common to the nine product tables (Goods ... Vaccination); DaysToReminder only in
-- Vaccination. Codes are text holding a number; uniqueness of Code is checked by the program, not
-- here, because history may hold anything. Dates are "yyyy-MM-dd" text. Yes/no flags are 'Y'/'N'.

CREATE TABLE SysInfo (
    ALINE1 VARCHAR(255) DEFAULT '',
    ALINE2 VARCHAR(255) DEFAULT '',
    ALINE3 VARCHAR(255) DEFAULT '',
    ALINE4 VARCHAR(255) DEFAULT '',
    ALINE5 VARCHAR(255) DEFAULT '',
    ALINE6 VARCHAR(255) DEFAULT '',
    ALINE7 VARCHAR(255) DEFAULT '',
    InvFooter VARCHAR(255) DEFAULT '',
    InvFooter1 VARCHAR(255) DEFAULT '',
    RecFooter VARCHAR(255) DEFAULT '',
    StatementFooter1 VARCHAR(255) DEFAULT '',
    StatementFooter2 VARCHAR(255) DEFAULT '',
    StatementFooter3 VARCHAR(255) DEFAULT '',
    HandOverFooter VARCHAR(255) DEFAULT '',
    LABEL2 VARCHAR(255) DEFAULT '',
    LABEL3 VARCHAR(255) DEFAULT '',
    Tax1Name VARCHAR(255) DEFAULT '',
    Tax2Name VARCHAR(255) DEFAULT '',
    ALINE1_A VARCHAR(255) DEFAULT '',
    ALINE2_A VARCHAR(255) DEFAULT '',
    ALINE3_A VARCHAR(255) DEFAULT '',
    ALINE4_A VARCHAR(255) DEFAULT '',
    ALINE5_A VARCHAR(255) DEFAULT '',
    ALINE6_A VARCHAR(255) DEFAULT '',
    ALINE7_A VARCHAR(255) DEFAULT '',
    InvFooter_A VARCHAR(255) DEFAULT '',
    InvFooter1_A VARCHAR(255) DEFAULT '',
    RecFooter_A VARCHAR(255) DEFAULT '',
    StatementFooter1_A VARCHAR(255) DEFAULT '',
    StatementFooter2_A VARCHAR(255) DEFAULT '',
    StatementFooter3_A VARCHAR(255) DEFAULT '',
    HandOverFooter_A VARCHAR(255) DEFAULT '',
    LABEL2_A VARCHAR(255) DEFAULT '',
    LABEL3_A VARCHAR(255) DEFAULT '',
    Tax1Name_A VARCHAR(255) DEFAULT '',
    Tax2Name_A VARCHAR(255) DEFAULT '',
    Tax1 DOUBLE DEFAULT 0,
    Tax2 DOUBLE DEFAULT 0
);

-- The nine product tables (Goods, Hospital, Consult, Diagnosis, Injection, Lab, Medication, Proc,
-- Vaccination) share one layout: each statement naming @Product@ is run once per table, with
-- @product@ as its name in lower case; a line starting @Vaccination@ belongs to Vaccination only.
CREATE TABLE @Product@ (
    Code VARCHAR(20),
    Description VARCHAR(100),
    Description_A VARCHAR(100) DEFAULT '',
    Schedule INTEGER DEFAULT 0,
    UnitOfMeasure VARCHAR(30) DEFAULT '',
    UnitOfMeasure_A VARCHAR(30) DEFAULT '',
    Cost DOUBLE DEFAULT 0,
    MarkUp DOUBLE DEFAULT 0,
    Price DOUBLE DEFAULT 0,
    Tax1 VARCHAR(1) DEFAULT 'Y',
    Tax2 VARCHAR(1) DEFAULT 'N',
    Quantity DOUBLE DEFAULT 0,
    ReOrder DOUBLE DEFAULT 0,
    ToQuantity DOUBLE DEFAULT 0,
    OnOrder DOUBLE DEFAULT 0,
    OrderDate VARCHAR(20) DEFAULT '',
    Supplier VARCHAR(100) DEFAULT '',
    Remarks TEXT,
    Active VARCHAR(1) DEFAULT 'Y'
@Vaccination@    , DaysToReminder INTEGER DEFAULT 0
);

CREATE INDEX @product@_code ON @Product@ (Code);
CREATE INDEX @product@_active ON @Product@ (Active, Description);

CREATE TABLE StockTrace (
    TraceNumber INTEGER PRIMARY KEY AUTOINCREMENT,
    MyDate VARCHAR(20),
    SP VARCHAR(50) DEFAULT '',
    Notes VARCHAR(255) DEFAULT '',
    Supplier VARCHAR(100) DEFAULT '',
    InvoiceNumber VARCHAR(50) DEFAULT '',
    Adjustment VARCHAR(1) DEFAULT 'N'
);

CREATE INDEX stocktrace_date ON StockTrace (MyDate);

CREATE TABLE StockTraceItem (
    TraceNumber INTEGER,
    Category VARCHAR(20),
    Code VARCHAR(20),
    Quantity DOUBLE DEFAULT 0,
    UnitOfMeasure VARCHAR(30) DEFAULT '',
    Description VARCHAR(100) DEFAULT '',
    Schedule INTEGER DEFAULT 0,
    Batch VARCHAR(50) DEFAULT ''
);

CREATE INDEX stocktraceitem_product ON StockTraceItem (Category, Code);
CREATE INDEX stocktraceitem_trace ON StockTraceItem (TraceNumber);

CREATE TABLE Owner (
    AccountNumber INTEGER NOT NULL PRIMARY KEY,
    Title VARCHAR(20) DEFAULT '',
    Initials VARCHAR(10) DEFAULT '',
    Surname VARCHAR(100) DEFAULT '',
    IDno VARCHAR(30) DEFAULT '',
    TelHome VARCHAR(30) DEFAULT '',
    TelWork VARCHAR(30) DEFAULT '',
    Cell VARCHAR(30) DEFAULT '',
    PhysAddr VARCHAR(255) DEFAULT '',
    PostalAddr VARCHAR(255) DEFAULT '',
    Email VARCHAR(100) DEFAULT '',
    Notes TEXT,
    BadDebt VARCHAR(1) DEFAULT 'N',
    Created VARCHAR(20)
);

CREATE INDEX owner_created ON Owner (Created);
CREATE INDEX owner_baddebt ON Owner (BadDebt);

CREATE TABLE Patient (
    PetNumber INTEGER NOT NULL PRIMARY KEY,
    AccountNumber INTEGER,
    Name VARCHAR(50) DEFAULT '',
    Weight DOUBLE DEFAULT 0,
    Sex VARCHAR(10) DEFAULT '',
    Breed VARCHAR(100) DEFAULT ''
);

CREATE INDEX patient_account ON Patient (AccountNumber);

CREATE TABLE Invoice (
    MyNumber INTEGER NOT NULL PRIMARY KEY,
    AccountNumber INTEGER,
    PetNumber INTEGER,
    MyDate VARCHAR(20),
    Status VARCHAR(2) DEFAULT ''
);

CREATE INDEX invoice_status ON Invoice (Status);
CREATE INDEX invoice_date ON Invoice (MyDate);
CREATE INDEX invoice_account ON Invoice (AccountNumber);

CREATE TABLE InvoiceItem (
    InvoiceNumber INTEGER,
    Petnumber INTEGER,
    MyDate VARCHAR(20),
    Vet VARCHAR(10) DEFAULT '',
    Category VARCHAR(20),
    Code VARCHAR(20),
    Description VARCHAR(100) DEFAULT '',
    Quantity DOUBLE DEFAULT 0,
    Price DOUBLE DEFAULT 0,
    UnitOfMeasure VARCHAR(30) DEFAULT ''
);

-- A product's lines by date for the reports; with the invoice and quantity in the index, the stock
-- figures of a product are read from the index alone.
CREATE INDEX invoiceitem_product ON InvoiceItem (Category, Code, MyDate, InvoiceNumber, Quantity);
CREATE INDEX invoiceitem_invoice ON InvoiceItem (InvoiceNumber);
CREATE INDEX invoiceitem_date ON InvoiceItem (MyDate, Category);
-- A category's lines of a period (performance, purchases, commission, personnel): without it SQLite
-- takes the product index for the category and reads every line the category ever had. With the
-- patient, description and quantity in it, the client purchases are read from the index alone.
CREATE INDEX invoiceitem_category_date ON InvoiceItem (Category, MyDate, Petnumber, Description, Quantity);
CREATE INDEX invoiceitem_vet ON InvoiceItem (Vet, MyDate);
CREATE INDEX invoiceitem_pet ON InvoiceItem (Petnumber);

CREATE TABLE Journal (
    MyNumber INTEGER,
    AccountNumber INTEGER,
    MyDate VARCHAR(20),
    Description VARCHAR(100) DEFAULT '',
    Amount DOUBLE DEFAULT 0,
    Rounding DOUBLE DEFAULT 0
);

CREATE INDEX journal_number ON Journal (MyNumber, Description);
-- A client's entries by date, with their kind and value: the client reports' balances and totals are
-- read from the index alone.
CREATE INDEX journal_account ON Journal (AccountNumber, MyDate, Description, Amount, Rounding);
CREATE INDEX journal_date ON Journal (MyDate);

CREATE TABLE Operators (
    Operator VARCHAR(50) NOT NULL PRIMARY KEY,
    id VARCHAR(50),
    Initials VARCHAR(10) DEFAULT '',
    Diary VARCHAR(1) DEFAULT 'N',
    Commission DOUBLE DEFAULT 0
);

CREATE INDEX operators_initials ON Operators (Initials);

CREATE TABLE Permissions (
    keynum INTEGER PRIMARY KEY AUTOINCREMENT,
    Operator VARCHAR(50),
    Class VARCHAR(50),
    Description VARCHAR(100)
);

CREATE INDEX permissions_operator ON Permissions (Operator);

CREATE TABLE Supply (
    keynum INTEGER PRIMARY KEY AUTOINCREMENT,
    Company VARCHAR(100) DEFAULT '',
    Contact VARCHAR(100) DEFAULT '',
    Email VARCHAR(100) DEFAULT '',
    Tel VARCHAR(30) DEFAULT '',
    Fax VARCHAR(30) DEFAULT '',
    Cell VARCHAR(30) DEFAULT '',
    PostalAddr VARCHAR(255) DEFAULT '',
    PhysicalAddr VARCHAR(255) DEFAULT '',
    Lab VARCHAR(1) DEFAULT 'N'
);

CREATE INDEX supply_company ON Supply (Company);

CREATE TABLE AutoProc (
    Code INTEGER PRIMARY KEY AUTOINCREMENT,
    Description VARCHAR(100) DEFAULT ''
);

CREATE INDEX autoproc_description ON AutoProc (Description);

CREATE TABLE AutoProcContents (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    ProcId INTEGER,
    Category VARCHAR(20),
    Code VARCHAR(20),
    Quantity DOUBLE DEFAULT 0,
    Charge VARCHAR(1) DEFAULT 'Y'
);

CREATE INDEX autoproccontents_proc ON AutoProcContents (ProcId);

CREATE TABLE breeds (
    keynum INTEGER PRIMARY KEY AUTOINCREMENT,
    Description VARCHAR(100) DEFAULT '',
    Description_A VARCHAR(100) DEFAULT ''
);
