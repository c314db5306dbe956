-- Quorel schema, PostgreSQL. Names are unquoted and therefore folded to lower case; the
-- statements of the program name them in any case. StockTrace takes its key from stocktrace_seq.
-- Columns common to the nine product tables (Goods ... Vaccination); DaysToReminder only in
-- Vaccination. Codes are text holding a number; uniqueness of Code is checked by the program, not
-- here, because history may hold anything. Dates are "yyyy-MM-dd" text. Yes/no flags are 'Y'/'N'.
-- Every text column collates "C" (code point order, case-sensitive), whatever locale the database
-- was created with: lists and reports then sort exactly as on SQLite and MariaDB (utf8mb4_bin),
-- where a database created under en_US.UTF-8 would otherwise put "bone treats" beside "Bone Treats".

CREATE TABLE SysInfo (
    ALINE1 VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE2 VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE3 VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE4 VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE5 VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE6 VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE7 VARCHAR(255) COLLATE "C" DEFAULT '',
    InvFooter VARCHAR(255) COLLATE "C" DEFAULT '',
    InvFooter1 VARCHAR(255) COLLATE "C" DEFAULT '',
    RecFooter VARCHAR(255) COLLATE "C" DEFAULT '',
    StatementFooter1 VARCHAR(255) COLLATE "C" DEFAULT '',
    StatementFooter2 VARCHAR(255) COLLATE "C" DEFAULT '',
    StatementFooter3 VARCHAR(255) COLLATE "C" DEFAULT '',
    HandOverFooter VARCHAR(255) COLLATE "C" DEFAULT '',
    LABEL2 VARCHAR(255) COLLATE "C" DEFAULT '',
    LABEL3 VARCHAR(255) COLLATE "C" DEFAULT '',
    Tax1Name VARCHAR(255) COLLATE "C" DEFAULT '',
    Tax2Name VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE1_A VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE2_A VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE3_A VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE4_A VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE5_A VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE6_A VARCHAR(255) COLLATE "C" DEFAULT '',
    ALINE7_A VARCHAR(255) COLLATE "C" DEFAULT '',
    InvFooter_A VARCHAR(255) COLLATE "C" DEFAULT '',
    InvFooter1_A VARCHAR(255) COLLATE "C" DEFAULT '',
    RecFooter_A VARCHAR(255) COLLATE "C" DEFAULT '',
    StatementFooter1_A VARCHAR(255) COLLATE "C" DEFAULT '',
    StatementFooter2_A VARCHAR(255) COLLATE "C" DEFAULT '',
    StatementFooter3_A VARCHAR(255) COLLATE "C" DEFAULT '',
    HandOverFooter_A VARCHAR(255) COLLATE "C" DEFAULT '',
    LABEL2_A VARCHAR(255) COLLATE "C" DEFAULT '',
    LABEL3_A VARCHAR(255) COLLATE "C" DEFAULT '',
    Tax1Name_A VARCHAR(255) COLLATE "C" DEFAULT '',
    Tax2Name_A VARCHAR(255) COLLATE "C" DEFAULT '',
    Tax1 DOUBLE PRECISION DEFAULT 0,
    Tax2 DOUBLE PRECISION DEFAULT 0
);

-- The nine product tables (Goods, Hospital, Consult, Diagnosis, Injection, Lab, Medication, Proc,
-- Vaccination) share one layout: each statement naming @Product@ is run once per table, with
-- @product@ as its name in lower case; a line starting @Vaccination@ belongs to Vaccination only.
CREATE TABLE @Product@ (
    Code VARCHAR(20) COLLATE "C",
    Description VARCHAR(100) COLLATE "C",
    Description_A VARCHAR(100) COLLATE "C" DEFAULT '',
    Schedule INTEGER DEFAULT 0,
    UnitOfMeasure VARCHAR(30) COLLATE "C" DEFAULT '',
    UnitOfMeasure_A VARCHAR(30) COLLATE "C" DEFAULT '',
    Cost DOUBLE PRECISION DEFAULT 0,
    MarkUp DOUBLE PRECISION DEFAULT 0,
    Price DOUBLE PRECISION DEFAULT 0,
    Tax1 VARCHAR(1) COLLATE "C" DEFAULT 'Y',
    Tax2 VARCHAR(1) COLLATE "C" DEFAULT 'N',
    Quantity DOUBLE PRECISION DEFAULT 0,
    ReOrder DOUBLE PRECISION DEFAULT 0,
    ToQuantity DOUBLE PRECISION DEFAULT 0,
    OnOrder DOUBLE PRECISION DEFAULT 0,
    OrderDate VARCHAR(20) COLLATE "C" DEFAULT '',
    Supplier VARCHAR(100) COLLATE "C" DEFAULT '',
    Remarks TEXT COLLATE "C",
    Active VARCHAR(1) COLLATE "C" DEFAULT 'Y'
@Vaccination@    , DaysToReminder INTEGER DEFAULT 0
);

CREATE INDEX @product@_code ON @Product@ (Code);
CREATE INDEX @product@_active ON @Product@ (Active, Description);

CREATE SEQUENCE stocktrace_seq;

CREATE TABLE StockTrace (
    TraceNumber INTEGER NOT NULL DEFAULT nextval('stocktrace_seq') PRIMARY KEY,
    MyDate VARCHAR(20) COLLATE "C",
    SP VARCHAR(50) COLLATE "C" DEFAULT '',
    Notes VARCHAR(255) COLLATE "C" DEFAULT '',
    Supplier VARCHAR(100) COLLATE "C" DEFAULT '',
    InvoiceNumber VARCHAR(50) COLLATE "C" DEFAULT '',
    Adjustment VARCHAR(1) COLLATE "C" DEFAULT 'N'
);

ALTER SEQUENCE stocktrace_seq OWNED BY StockTrace.TraceNumber;

CREATE INDEX stocktrace_date ON StockTrace (MyDate);

CREATE TABLE StockTraceItem (
    TraceNumber INTEGER,
    Category VARCHAR(20) COLLATE "C",
    Code VARCHAR(20) COLLATE "C",
    Quantity DOUBLE PRECISION DEFAULT 0,
    UnitOfMeasure VARCHAR(30) COLLATE "C" DEFAULT '',
    Description VARCHAR(100) COLLATE "C" DEFAULT '',
    Schedule INTEGER DEFAULT 0,
    Batch VARCHAR(50) COLLATE "C" DEFAULT ''
);

CREATE INDEX stocktraceitem_product ON StockTraceItem (Category, Code);
CREATE INDEX stocktraceitem_trace ON StockTraceItem (TraceNumber);

CREATE TABLE Owner (
    AccountNumber INTEGER NOT NULL PRIMARY KEY,
    Title VARCHAR(20) COLLATE "C" DEFAULT '',
    Initials VARCHAR(10) COLLATE "C" DEFAULT '',
    Surname VARCHAR(100) COLLATE "C" DEFAULT '',
    IDno VARCHAR(30) COLLATE "C" DEFAULT '',
    TelHome VARCHAR(30) COLLATE "C" DEFAULT '',
    TelWork VARCHAR(30) COLLATE "C" DEFAULT '',
    Cell VARCHAR(30) COLLATE "C" DEFAULT '',
    PhysAddr VARCHAR(255) COLLATE "C" DEFAULT '',
    PostalAddr VARCHAR(255) COLLATE "C" DEFAULT '',
    Email VARCHAR(100) COLLATE "C" DEFAULT '',
    Notes TEXT COLLATE "C",
    BadDebt VARCHAR(1) COLLATE "C" DEFAULT 'N',
    Created VARCHAR(20) COLLATE "C"
);

CREATE INDEX owner_created ON Owner (Created);
CREATE INDEX owner_baddebt ON Owner (BadDebt);

CREATE TABLE Patient (
    PetNumber INTEGER NOT NULL PRIMARY KEY,
    AccountNumber INTEGER,
    Name VARCHAR(50) COLLATE "C" DEFAULT '',
    Weight DOUBLE PRECISION DEFAULT 0,
    Sex VARCHAR(10) COLLATE "C" DEFAULT '',
    Breed VARCHAR(100) COLLATE "C" DEFAULT ''
);

CREATE INDEX patient_account ON Patient (AccountNumber);

CREATE TABLE Invoice (
    MyNumber INTEGER NOT NULL PRIMARY KEY,
    AccountNumber INTEGER,
    PetNumber INTEGER,
    MyDate VARCHAR(20) COLLATE "C",
    Status VARCHAR(2) COLLATE "C" DEFAULT ''
);

CREATE INDEX invoice_status ON Invoice (Status);
CREATE INDEX invoice_date ON Invoice (MyDate);
CREATE INDEX invoice_account ON Invoice (AccountNumber);
-- The status by invoice number, so that the stock figures read it from the index alone: PostgreSQL
-- otherwise visits the table for every invoice line of the product.
CREATE INDEX invoice_number_status ON Invoice (MyNumber, Status);

CREATE TABLE InvoiceItem (
    InvoiceNumber INTEGER,
    Petnumber INTEGER,
    MyDate VARCHAR(20) COLLATE "C",
    Vet VARCHAR(10) COLLATE "C" DEFAULT '',
    Category VARCHAR(20) COLLATE "C",
    Code VARCHAR(20) COLLATE "C",
    Description VARCHAR(100) COLLATE "C" DEFAULT '',
    Quantity DOUBLE PRECISION DEFAULT 0,
    Price DOUBLE PRECISION DEFAULT 0,
    UnitOfMeasure VARCHAR(30) COLLATE "C" DEFAULT ''
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
    MyDate VARCHAR(20) COLLATE "C",
    Description VARCHAR(100) COLLATE "C" DEFAULT '',
    Amount DOUBLE PRECISION DEFAULT 0,
    Rounding DOUBLE PRECISION DEFAULT 0
);

CREATE INDEX journal_number ON Journal (MyNumber, Description);
-- A client's entries by date, with their kind and value: the client reports' balances and totals are
-- read from the index alone.
CREATE INDEX journal_account ON Journal (AccountNumber, MyDate, Description, Amount, Rounding);
CREATE INDEX journal_date ON Journal (MyDate);

CREATE TABLE Operators (
    Operator VARCHAR(50) COLLATE "C" NOT NULL PRIMARY KEY,
    id VARCHAR(50) COLLATE "C",
    Initials VARCHAR(10) COLLATE "C" DEFAULT '',
    Diary VARCHAR(1) COLLATE "C" DEFAULT 'N',
    Commission DOUBLE PRECISION DEFAULT 0
);

CREATE INDEX operators_initials ON Operators (Initials);

CREATE TABLE Permissions (
    keynum SERIAL PRIMARY KEY,
    Operator VARCHAR(50) COLLATE "C",
    Class VARCHAR(50) COLLATE "C",
    Description VARCHAR(100) COLLATE "C"
);

CREATE INDEX permissions_operator ON Permissions (Operator);

CREATE TABLE Supply (
    keynum SERIAL PRIMARY KEY,
    Company VARCHAR(100) COLLATE "C" DEFAULT '',
    Contact VARCHAR(100) COLLATE "C" DEFAULT '',
    Email VARCHAR(100) COLLATE "C" DEFAULT '',
    Tel VARCHAR(30) COLLATE "C" DEFAULT '',
    Fax VARCHAR(30) COLLATE "C" DEFAULT '',
    Cell VARCHAR(30) COLLATE "C" DEFAULT '',
    PostalAddr VARCHAR(255) COLLATE "C" DEFAULT '',
    PhysicalAddr VARCHAR(255) COLLATE "C" DEFAULT '',
    Lab VARCHAR(1) COLLATE "C" DEFAULT 'N'
);

CREATE INDEX supply_company ON Supply (Company);

CREATE TABLE AutoProc (
    Code SERIAL PRIMARY KEY,
    Description VARCHAR(100) COLLATE "C" DEFAULT ''
);

CREATE INDEX autoproc_description ON AutoProc (Description);

CREATE TABLE AutoProcContents (
    id SERIAL PRIMARY KEY,
    ProcId INTEGER,
    Category VARCHAR(20) COLLATE "C",
    Code VARCHAR(20) COLLATE "C",
    Quantity DOUBLE PRECISION DEFAULT 0,
    Charge VARCHAR(1) COLLATE "C" DEFAULT 'Y'
);

CREATE INDEX autoproccontents_proc ON AutoProcContents (ProcId);

CREATE TABLE breeds (
    keynum SERIAL PRIMARY KEY,
    Description VARCHAR(100) COLLATE "C" DEFAULT '',
    Description_A VARCHAR(100) COLLATE "C" DEFAULT ''
);
