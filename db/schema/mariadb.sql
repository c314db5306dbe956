-- Quorel schema, MariaDB/MySQL. Table names are case-sensitive on Linux. Binary collation so
-- that text compares and sorts as on SQLite and PostgreSQL (code point order, case-sensitive).
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
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

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
    Active VARCHAR(1) DEFAULT 'Y',
@Vaccination@    DaysToReminder INTEGER DEFAULT 0,
    KEY @product@_code (Code),
    KEY @product@_active (Active, Description)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

CREATE TABLE StockTrace (
    TraceNumber INTEGER NOT NULL AUTO_INCREMENT PRIMARY KEY,
    MyDate VARCHAR(20),
    SP VARCHAR(50) DEFAULT '',
    Notes VARCHAR(255) DEFAULT '',
    Supplier VARCHAR(100) DEFAULT '',
    InvoiceNumber VARCHAR(50) DEFAULT '',
    Adjustment VARCHAR(1) DEFAULT 'N',
    KEY stocktrace_date (MyDate)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

CREATE TABLE StockTraceItem (
    TraceNumber INTEGER,
    Category VARCHAR(20),
    Code VARCHAR(20),
    Quantity DOUBLE DEFAULT 0,
    UnitOfMeasure VARCHAR(30) DEFAULT '',
    Description VARCHAR(100) DEFAULT '',
    Schedule INTEGER DEFAULT 0,
    Batch VARCHAR(50) DEFAULT '',
    KEY stocktraceitem_product (Category, Code),
    KEY stocktraceitem_trace (TraceNumber)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

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
    Created VARCHAR(20),
    KEY owner_created (Created),
    KEY owner_baddebt (BadDebt)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

CREATE TABLE Patient (
    PetNumber INTEGER NOT NULL PRIMARY KEY,
    AccountNumber INTEGER,
    Name VARCHAR(50) DEFAULT '',
    Weight DOUBLE DEFAULT 0,
    Sex VARCHAR(10) DEFAULT '',
    Breed VARCHAR(100) DEFAULT '',
    KEY patient_account (AccountNumber)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

CREATE TABLE Invoice (
    MyNumber INTEGER NOT NULL PRIMARY KEY,
    AccountNumber INTEGER,
    PetNumber INTEGER,
    MyDate VARCHAR(20),
    Status VARCHAR(2) DEFAULT '',
    KEY invoice_status (Status),
    KEY invoice_date (MyDate),
    KEY invoice_account (AccountNumber)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

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
    UnitOfMeasure VARCHAR(30) DEFAULT '',
    -- A product's lines by date for the reports; with the invoice and quantity in the index, the
    -- stock figures of a product are read from the index alone.
    KEY invoiceitem_product (Category, Code, MyDate, InvoiceNumber, Quantity),
    KEY invoiceitem_invoice (InvoiceNumber),
    KEY invoiceitem_date (MyDate, Category),
    -- A category's lines of a period, for the sales reports; the client purchases from it alone.
    KEY invoiceitem_category_date (Category, MyDate, Petnumber, Description, Quantity),
    KEY invoiceitem_vet (Vet, MyDate),
    KEY invoiceitem_pet (Petnumber)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

CREATE TABLE Journal (
    MyNumber INTEGER,
    AccountNumber INTEGER,
    MyDate VARCHAR(20),
    Description VARCHAR(100) DEFAULT '',
    Amount DOUBLE DEFAULT 0,
    Rounding DOUBLE DEFAULT 0,
    KEY journal_number (MyNumber, Description),
    -- A client's entries by date, with their kind and value: the client reports' balances and totals
    -- are read from the index alone.
    KEY journal_account (AccountNumber, MyDate, Description, Amount, Rounding),
    KEY journal_date (MyDate)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

CREATE TABLE Operators (
    Operator VARCHAR(50) NOT NULL PRIMARY KEY,
    id VARCHAR(50),
    Initials VARCHAR(10) DEFAULT '',
    Diary VARCHAR(1) DEFAULT 'N',
    Commission DOUBLE DEFAULT 0,
    KEY operators_initials (Initials)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

CREATE TABLE Permissions (
    keynum INTEGER NOT NULL AUTO_INCREMENT PRIMARY KEY,
    Operator VARCHAR(50),
    Class VARCHAR(50),
    Description VARCHAR(100),
    KEY permissions_operator (Operator)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

CREATE TABLE Supply (
    keynum INTEGER NOT NULL AUTO_INCREMENT PRIMARY KEY,
    Company VARCHAR(100) DEFAULT '',
    Contact VARCHAR(100) DEFAULT '',
    Email VARCHAR(100) DEFAULT '',
    Tel VARCHAR(30) DEFAULT '',
    Fax VARCHAR(30) DEFAULT '',
    Cell VARCHAR(30) DEFAULT '',
    PostalAddr VARCHAR(255) DEFAULT '',
    PhysicalAddr VARCHAR(255) DEFAULT '',
    Lab VARCHAR(1) DEFAULT 'N',
    KEY supply_company (Company)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

CREATE TABLE AutoProc (
    Code INTEGER NOT NULL AUTO_INCREMENT PRIMARY KEY,
    Description VARCHAR(100) DEFAULT '',
    KEY autoproc_description (Description)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

CREATE TABLE AutoProcContents (
    id INTEGER NOT NULL AUTO_INCREMENT PRIMARY KEY,
    ProcId INTEGER,
    Category VARCHAR(20),
    Code VARCHAR(20),
    Quantity DOUBLE DEFAULT 0,
    Charge VARCHAR(1) DEFAULT 'Y',
    KEY autoproccontents_proc (ProcId)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;

CREATE TABLE breeds (
    keynum INTEGER NOT NULL AUTO_INCREMENT PRIMARY KEY,
    Description VARCHAR(100) DEFAULT '',
    Description_A VARCHAR(100) DEFAULT ''
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin;
