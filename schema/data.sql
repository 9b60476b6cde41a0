-- QD8Data.dat: the company data database.
-- Reached through DataConnectionString (the editors, the voucher panel, the
-- lists) and through ConnectionString of the navigation controls, the job
-- selector and the point panel: in this deployment the session database and
-- the company data database are one and the same.
--
-- First the session tables (users, their settings, rights, command lists,
-- option values, running numbers), then the business tables by area.
-- Money is NUMERIC(19,4), quantities and point counts DOUBLE PRECISION, flags
-- INTEGER 0/1. Document headers share one set of stamp and status columns
-- (prefix + CreateBy ... ReviseBy) read by the document status view and the
-- document list filters.

-- Users. TUsrID 0 is the template user (administrator): a new user starts
-- with copies of its settings, rights and commands, a setting that a user
-- lacks is read from user 0, and its command list is the one the ribbon
-- offers for removal.
-- TUsrLoginPassword is "sha256:" followed by the lower-case hex SHA-256 of the
-- UTF-8 password, or empty for a user without a password.
CREATE TABLE QD8TUser (
    TUsrID INTEGER NOT NULL,
    TUsrLoginName VARCHAR(50) NOT NULL,
    TUsrLoginPassword VARCHAR(100),
    TUsrName VARCHAR(200) COLLATE THAI,
    TUsrName2 VARCHAR(200) COLLATE THAI,
    TUsrTEmpCode VARCHAR(20),
    TUsrProjectLevel INTEGER DEFAULT 0,
    TUsrActiveStatus INTEGER DEFAULT 1,
    TUsrCreateDate TIMESTAMP,
    TUsrFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TUsrID)
);
CREATE UNIQUE INDEX QD8XUserLogin ON QD8TUser (TUsrLoginName);

-- Per-user settings by name: "LanguageID" (0 Thai, 1 English), "RibbonTheme",
-- "DefaultUserProject", "ApproveNoteFilter" and "ApproveNoteValue" ...
-- Values are text, read as numbers where the caller wants a number.
CREATE TABLE QD8TUserSetting (
    TUsSTUsrID INTEGER NOT NULL,
    TUsSAlias VARCHAR(50) NOT NULL,
    TUsSValue VARCHAR(2000),
    PRIMARY KEY (TUsSTUsrID, TUsSAlias)
);

-- Rights of a user on a command (TURtTCmdAlias is the command alias, or the
-- name of a right that is no command, such as ICINVENTORYCOST).
-- TURtRun (may launch) and TURtShow (may be listed) are the two list rights:
-- a command is offered in the shortcut bar, tool bar and ribbon only when both
-- are 1. The other eight are the rights of the editors' tool-bar buttons of
-- the same names. A missing row means no right at all.
CREATE TABLE QD8TUserRight (
    TURtTUsrID INTEGER NOT NULL,
    TURtTCmdAlias VARCHAR(50) NOT NULL,
    TURtRun INTEGER DEFAULT 0,
    TURtShow INTEGER DEFAULT 0,
    TURtAdd INTEGER DEFAULT 0,
    TURtDelete INTEGER DEFAULT 0,
    TURtUnPass INTEGER DEFAULT 0,
    TURtCopy INTEGER DEFAULT 0,
    TURtEdit INTEGER DEFAULT 0,
    TURtCheck INTEGER DEFAULT 0,
    TURtPass INTEGER DEFAULT 0,
    TURtPrint INTEGER DEFAULT 0,
    PRIMARY KEY (TURtTUsrID, TURtTCmdAlias)
);

-- Employee types a user may see, per scope level. The permission object turns
-- the rows of a user and level into the condition column IN ('A','B',...),
-- a user without rows for the level is not restricted.
CREATE TABLE QD8TUserEmpType (
    TUEtTUsrID INTEGER NOT NULL,
    TUEtLevel INTEGER NOT NULL,
    TUEtTEmTCode VARCHAR(20) NOT NULL,
    PRIMARY KEY (TUEtTUsrID, TUEtLevel, TUEtTEmTCode)
);

-- Stored option values. The definitions (type, default) are the option
-- tables of the application database. TOpVScope is COMPANY, BRANCH, HOST or
-- USER, TOpVScopeKey is '' for the company, else the branch code, the host
-- name or the user ID as text. Every value is kept both as text and as number.
CREATE TABLE QD8TOptionValue (
    TOpVScope VARCHAR(10) NOT NULL,
    TOpVScopeKey VARCHAR(100) NOT NULL,
    TOpVTOptAlias VARCHAR(50) NOT NULL,
    TOpVValue VARCHAR(2000),
    TOpVNumber DOUBLE PRECISION DEFAULT 0,
    TOpVEditBy VARCHAR(50),
    TOpVEditDate TIMESTAMP,
    PRIMARY KEY (TOpVScope, TOpVScopeKey, TOpVTOptAlias)
);

-- Running numbers: the last number taken under a key ("DAILYRECORDCALL" for
-- voucher numbers) and a sub-key (for vouchers the journal book and period).
-- A number is taken by raising TRunLastNo inside a transaction, so two
-- connections never receive the same number.
CREATE TABLE QD8TRunningNumber (
    TRunKey VARCHAR(50) NOT NULL,
    TRunSubKey VARCHAR(100) NOT NULL,
    TRunLastNo INTEGER DEFAULT 0 NOT NULL,
    TRunEditDate TIMESTAMP,
    PRIMARY KEY (TRunKey, TRunSubKey)
);

-- Commands shown for a module (the module list of the launchers).
CREATE TABLE QD8TModuleCommand (
    TMdCTCmGAlias VARCHAR(20) NOT NULL,
    TMdCTCmdID INTEGER NOT NULL,
    TMdCSort INTEGER DEFAULT 0,
    PRIMARY KEY (TMdCTCmGAlias, TMdCTCmdID)
);

-- A user's own commands.
CREATE TABLE QD8TUserCommand (
    TUsCTUsrID INTEGER NOT NULL,
    TUsCTCmdID INTEGER NOT NULL,
    TUsCSort INTEGER DEFAULT 0,
    PRIMARY KEY (TUsCTUsrID, TUsCTCmdID)
);

-- Saved report criteria per user (favourites of the report filter screen).
CREATE TABLE QD8TReportFavorite (
    TRFvID INTEGER NOT NULL,
    TRFvTUsrID INTEGER NOT NULL,
    TRFvTRpFReportGroup VARCHAR(50) NOT NULL,
    TRFvName VARCHAR(200) COLLATE THAI,
    TRFvParamList VARCHAR(4000),
    TRFvSort INTEGER DEFAULT 0,
    TRFvCreateDate TIMESTAMP,
    TRFvKind INTEGER DEFAULT 0,
    TRFvFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TRFvID)
);
CREATE INDEX QD8XReportFavoriteUser ON QD8TReportFavorite (TRFvTUsrID, TRFvTRpFReportGroup);

-- Organisation: branches, divisions, departments, sections, projects.
CREATE TABLE QD8TBranch (
    TBraCode VARCHAR(20) NOT NULL,
    TBraName VARCHAR(200) COLLATE THAI,
    TBraName2 VARCHAR(200) COLLATE THAI,
    TBraSort INTEGER DEFAULT 0,
    TBraFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TBraCode)
);

CREATE TABLE QD8TDivision (
    TDivCode VARCHAR(20) NOT NULL,
    TDivName VARCHAR(200) COLLATE THAI,
    TDivName2 VARCHAR(200) COLLATE THAI,
    TDivSort INTEGER DEFAULT 0,
    TDivFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TDivCode)
);

CREATE TABLE QD8TDepartment (
    TDepCode VARCHAR(20) NOT NULL,
    TDepName VARCHAR(200) COLLATE THAI,
    TDepName2 VARCHAR(200) COLLATE THAI,
    TDepTDivCode VARCHAR(20),
    TDepSort INTEGER DEFAULT 0,
    TDepFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TDepCode)
);

CREATE TABLE QD8TSection (
    TSecCode VARCHAR(20) NOT NULL,
    TSecName VARCHAR(200) COLLATE THAI,
    TSecName2 VARCHAR(200) COLLATE THAI,
    TSecTDepCode VARCHAR(20),
    TSecSort INTEGER DEFAULT 0,
    TSecFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TSecCode)
);

-- TPrjLevel is compared with the user's TUsrProjectLevel by the project filter.
CREATE TABLE QD8TProject (
    TPrjCode VARCHAR(20) NOT NULL,
    TPrjName VARCHAR(200) COLLATE THAI,
    TPrjName2 VARCHAR(200) COLLATE THAI,
    TPrjTARNCode VARCHAR(20),
    TPrjLevel INTEGER DEFAULT 0,
    TPrjStartDate DATE,
    TPrjEndDate DATE,
    TPrjFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TPrjCode)
);

-- Employees, their types and pay-slip periods.
CREATE TABLE QD8TEmployeeType (
    TEmTCode VARCHAR(20) NOT NULL,
    TEmTName VARCHAR(200) COLLATE THAI,
    TEmTName2 VARCHAR(200) COLLATE THAI,
    TEmTSort INTEGER DEFAULT 0,
    TEmTFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TEmTCode)
);

CREATE TABLE QD8TEmployee (
    TEmpCode VARCHAR(20) NOT NULL,
    TEmpFullName VARCHAR(200) COLLATE THAI,
    TEmpFullName2 VARCHAR(200) COLLATE THAI,
    TEmpTEmTCode VARCHAR(20),
    TEmpTBraCode VARCHAR(20),
    TEmpTDivCode VARCHAR(20),
    TEmpTDepCode VARCHAR(20),
    TEmpTSecCode VARCHAR(20),
    TEmpStartDate DATE,
    TEmpActiveStatus INTEGER DEFAULT 1,
    TEmpFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TEmpCode)
);
CREATE INDEX QD8XEmployeeType ON QD8TEmployee (TEmpTEmTCode);

CREATE TABLE QD8TEmpSlipPeriod (
    TSAPCode VARCHAR(20) NOT NULL,
    TSAPName VARCHAR(200) COLLATE THAI,
    TSAPName2 VARCHAR(200) COLLATE THAI,
    TSAPTEmTCode VARCHAR(20),
    TSAPStartDate DATE,
    TSAPEndDate DATE,
    TSAPPayDate DATE,
    TSAPFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TSAPCode)
);

-- Rows of all custom code lists, told apart by TCS1Type (the list's code).
-- TCS1Flag3 is the time the row was last written.
CREATE TABLE QD8TCustom1 (
    TCS1Type VARCHAR(50) NOT NULL,
    TCS1Code VARCHAR(50) NOT NULL,
    TCS1Name VARCHAR(500) COLLATE THAI,
    TCS1Name2 VARCHAR(500) COLLATE THAI,
    TCS1Flag1 INTEGER DEFAULT 1,
    TCS1Flag3 TIMESTAMP,
    PRIMARY KEY (TCS1Type, TCS1Code)
);

-- General ledger: journal books, chart of accounts, account map, allocation.
CREATE TABLE QD8TGLBook (
    TGLBCode VARCHAR(20) NOT NULL,
    TGLBName VARCHAR(200) COLLATE THAI,
    TGLBName2 VARCHAR(200) COLLATE THAI,
    TGLBSort INTEGER DEFAULT 0,
    TGLBFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TGLBCode)
);

CREATE TABLE QD8TACChart (
    TACCCode VARCHAR(20) NOT NULL,
    TACCName VARCHAR(200) COLLATE THAI,
    TACCName2 VARCHAR(200) COLLATE THAI,
    TACCLevel INTEGER DEFAULT 1,
    TACCISControl INTEGER DEFAULT 0,
    TACCAutoAllocate INTEGER DEFAULT 0,
    TACCSort INTEGER DEFAULT 0,
    TACCFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TACCCode)
);

-- Automatic posting lines name a map key, the map gives the account.
CREATE TABLE QD8TAccountMap (
    TACMAlias VARCHAR(50) NOT NULL,
    TACMName VARCHAR(200) COLLATE THAI,
    TACMName2 VARCHAR(200) COLLATE THAI,
    TACMTACCCode VARCHAR(20),
    TACMFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TACMAlias)
);

-- How an amount posted to an allocating account is spread over other
-- accounts and analysis codes, line by line.
CREATE TABLE QD8TACAllocate (
    TACLTACCCode VARCHAR(20) NOT NULL,
    TACLLn INTEGER NOT NULL,
    TACLToTACCCode VARCHAR(20),
    TACLShareRatioText VARCHAR(50),
    TACLTBraCode VARCHAR(20),
    TACLTDivCode VARCHAR(20),
    TACLTDepCode VARCHAR(20),
    TACLTSecCode VARCHAR(20),
    PRIMARY KEY (TACLTACCCode, TACLLn)
);

-- Accounting years and their periods (calendar months: the voucher lines
-- carry the year and month of the voucher date). A voucher dated in a closed
-- period, or in a closed year, is refused by the voucher panel.
CREATE TABLE QD8TACYear (
    TACYID INTEGER NOT NULL,
    TACYName VARCHAR(100) COLLATE THAI,
    TACYName2 VARCHAR(100) COLLATE THAI,
    TACYStartDate DATE,
    TACYEndDate DATE,
    TACYClosed INTEGER DEFAULT 0,
    PRIMARY KEY (TACYID)
);

CREATE TABLE QD8TACPeriod (
    TACPTACYID INTEGER NOT NULL,
    TACPID INTEGER NOT NULL,
    TACPStartDate DATE,
    TACPEndDate DATE,
    TACPClosed INTEGER DEFAULT 0,
    PRIMARY KEY (TACPTACYID, TACPID)
);

-- Automatic posting formats. A format group (the voucher panel's
-- FormatGroupAlias) is an ordered list of lines; each names a map key (or,
-- when the key is empty, an account), a side ('D' debit, 'C' credit) and an
-- amount formula over the twenty input amounts X1..X20, e.g. "X1+X3-X2".
-- Descriptions may be empty (the panel's own description is used).
CREATE TABLE QD8TGLFormatGroup (
    TGFGAlias VARCHAR(50) NOT NULL,
    TGFGName VARCHAR(200) COLLATE THAI,
    TGFGName2 VARCHAR(200) COLLATE THAI,
    TGFGTGLBCode VARCHAR(20),
    TGFGFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TGFGAlias)
);

CREATE TABLE QD8TGLFormat (
    TGFMTGFGAlias VARCHAR(50) NOT NULL,
    TGFMLn INTEGER NOT NULL,
    TGFMTACMAlias VARCHAR(50),
    TGFMTACCCode VARCHAR(20),
    TGFMSide VARCHAR(1) NOT NULL,
    TGFMFormula VARCHAR(200) NOT NULL,
    TGFMDescription VARCHAR(500) COLLATE THAI,
    TGFMDescription2 VARCHAR(500) COLLATE THAI,
    PRIMARY KEY (TGFMTGFGAlias, TGFMLn)
);

-- Voucher headers. TGLTFlag3 is the time of the last save.
CREATE TABLE QD8TGLTrans (
    TGLTNo VARCHAR(30) NOT NULL,
    TGLTDate DATE,
    TGLTTGLBCode VARCHAR(20),
    TGLTMode INTEGER DEFAULT 0,
    TGLTRefNo VARCHAR(30),
    TGLTRefDate DATE,
    TGLTRefNo2 VARCHAR(30),
    TGLTRefDate2 DATE,
    TGLTIsAdjust INTEGER DEFAULT 0,
    TGLTPayTo VARCHAR(200),
    TGLTTPrjCode VARCHAR(20),
    TGLTTBraCode VARCHAR(20),
    TGLTDescription VARCHAR(500) COLLATE THAI,
    TGLTInputSource VARCHAR(20),
    TGLTCreateBy VARCHAR(50),
    TGLTCreateDate TIMESTAMP,
    TGLTEditCode VARCHAR(50),
    TGLTEditBy VARCHAR(50),
    TGLTRevision INTEGER DEFAULT 0,
    TGLTEditDate TIMESTAMP,
    TGLTAmount NUMERIC(19,4) DEFAULT 0,
    TGLTBalanceFlag INTEGER DEFAULT 0,
    TGLTApproveStatus INTEGER DEFAULT 0,
    TGLTCancelStatus INTEGER DEFAULT 0,
    TGLTConfirmStatus INTEGER DEFAULT 0,
    TGLTFlag3 TIMESTAMP,
    TGLTConfirmDate TIMESTAMP,
    TGLTConfirmBy VARCHAR(50),
    TGLTApproveDate TIMESTAMP,
    TGLTApproveBy VARCHAR(50),
    TGLTApproveNote VARCHAR(500),
    TGLTCancelDate TIMESTAMP,
    TGLTCancelBy VARCHAR(50),
    TGLTCancelNote VARCHAR(500),
    TGLTReviseStatus INTEGER DEFAULT 0,
    TGLTReviseBy VARCHAR(50),
    PRIMARY KEY (TGLTNo)
);
CREATE INDEX QD8XGLTransDate ON QD8TGLTrans (TGLTDate);
CREATE INDEX QD8XGLTransBook ON QD8TGLTrans (TGLTTGLBCode, TGLTDate);

-- Voucher lines. TGTSTACPTACYID / TGTSTACPID: accounting year and period
-- (month) of the voucher date.
CREATE TABLE QD8TGLTransSub (
    TGTSTGLTNo VARCHAR(30) NOT NULL,
    TGTSBlock INTEGER DEFAULT 0,
    TGTSLn INTEGER NOT NULL,
    TGTSInputSource VARCHAR(20),
    TGTSStatus INTEGER DEFAULT 0,
    TGTSTACCCode VARCHAR(20),
    TGTSDebit NUMERIC(19,4) DEFAULT 0,
    TGTSCredit NUMERIC(19,4) DEFAULT 0,
    TGTSName VARCHAR(200) COLLATE THAI,
    TGTSName2 VARCHAR(200) COLLATE THAI,
    TGTSDescription VARCHAR(500) COLLATE THAI,
    TGTSDescription2 VARCHAR(500) COLLATE THAI,
    TGTSChequeNo VARCHAR(30),
    TGTSTACPTACYID INTEGER,
    TGTSTACPID INTEGER,
    TGTSTARNCode VARCHAR(20),
    TGTSTAPNCode VARCHAR(20),
    TGTSTPrjCode VARCHAR(20),
    TGTSTBraCode VARCHAR(20),
    TGTSTSAeCode VARCHAR(20),
    TGTSTSZnCode VARCHAR(20),
    TGTSTSZGCode VARCHAR(20),
    TGTSTDivCode VARCHAR(20),
    TGTSTDepCode VARCHAR(20),
    TGTSTSecCode VARCHAR(20),
    TGTSTEmpCode VARCHAR(20),
    TGTSTAssCode VARCHAR(20),
    TGTSTPdtCode VARCHAR(30),
    TGTSTJobNo VARCHAR(30),
    TGTSBalanceFlag INTEGER DEFAULT 0,
    TGTSFlag1 INTEGER DEFAULT 1,
    TGTSFlag3 TIMESTAMP,
    PRIMARY KEY (TGTSTGLTNo, TGTSLn)
);
CREATE INDEX QD8XGLTransSubAccount ON QD8TGLTransSub (TGTSTACCCode);

-- Vouchers with their lines and account names. A voucher without lines still
-- gives one row (with Null line columns) so that its header loads.
CREATE VIEW QD8VGLTrans AS
SELECT h.TGLTNo, h.TGLTDate, h.TGLTTGLBCode, h.TGLTMode, h.TGLTRefNo,
       h.TGLTRefDate, h.TGLTRefNo2, h.TGLTRefDate2, h.TGLTIsAdjust, h.TGLTPayTo,
       h.TGLTTPrjCode, h.TGLTTBraCode, h.TGLTDescription, h.TGLTInputSource,
       h.TGLTCreateBy, h.TGLTCreateDate, h.TGLTEditCode, h.TGLTEditBy,
       h.TGLTRevision, h.TGLTEditDate, h.TGLTAmount, h.TGLTBalanceFlag,
       h.TGLTApproveStatus, h.TGLTCancelStatus, h.TGLTConfirmStatus, h.TGLTFlag3,
       s.TGTSTGLTNo, s.TGTSBlock, s.TGTSLn, s.TGTSInputSource, s.TGTSStatus,
       s.TGTSTACCCode, s.TGTSDebit, s.TGTSCredit, s.TGTSName, s.TGTSName2,
       s.TGTSDescription, s.TGTSDescription2, s.TGTSChequeNo,
       s.TGTSTACPTACYID, s.TGTSTACPID, s.TGTSTARNCode, s.TGTSTAPNCode,
       s.TGTSTPrjCode, s.TGTSTBraCode, s.TGTSTSAeCode, s.TGTSTSZnCode,
       s.TGTSTSZGCode, s.TGTSTDivCode, s.TGTSTDepCode, s.TGTSTSecCode,
       s.TGTSTEmpCode, s.TGTSTAssCode, s.TGTSTPdtCode, s.TGTSTJobNo,
       s.TGTSBalanceFlag, s.TGTSFlag1, s.TGTSFlag3,
       a.TACCName, a.TACCName2, a.TACCLevel, a.TACCISControl,
       b.TGLBName, b.TGLBName2
FROM QD8TGLTrans h
LEFT JOIN QD8TGLTransSub s ON s.TGTSTGLTNo = h.TGLTNo
LEFT JOIN QD8TACChart a ON s.TGTSTACCCode = a.TACCCode
LEFT JOIN QD8TGLBook b ON h.TGLTTGLBCode = b.TGLBCode;

-- Receivables and payables: customers (with their sales data), vendors,
-- invoices, received cheques.
CREATE TABLE QD8TAR (
    TARNCode VARCHAR(20) NOT NULL,
    TARNName VARCHAR(200) COLLATE THAI,
    TARNName2 VARCHAR(200) COLLATE THAI,
    TARNTaxID VARCHAR(20),
    TARNAddress VARCHAR(500),
    TARNTelephone VARCHAR(50),
    TARNTBraCode VARCHAR(20),
    TARNCreditDay INTEGER DEFAULT 0,
    TARNCreditLimit NUMERIC(19,4) DEFAULT 0,
    TARNCreditAvaiBal NUMERIC(19,4) DEFAULT 0,
    TARNActiveStatus INTEGER DEFAULT 1,
    TARNFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TARNCode)
);

-- Sales data of a customer. TAR2SaleCode is the salesman's employee code.
CREATE TABLE QD8TAR2 (
    TAR2TARNCode VARCHAR(20) NOT NULL,
    TAR2SaleCode VARCHAR(20),
    TAR2TSAeCode VARCHAR(20),
    TAR2TSZnCode VARCHAR(20),
    TAR2ContactName VARCHAR(200) COLLATE THAI,
    TAR2Flag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TAR2TARNCode)
);
CREATE INDEX QD8XAR2Sale ON QD8TAR2 (TAR2SaleCode);

CREATE TABLE QD8TAP (
    TAPNCode VARCHAR(20) NOT NULL,
    TAPNName VARCHAR(200) COLLATE THAI,
    TAPNName2 VARCHAR(200) COLLATE THAI,
    TAPNTaxID VARCHAR(20),
    TAPNAddress VARCHAR(500),
    TAPNTelephone VARCHAR(50),
    TAPNCreditDay INTEGER DEFAULT 0,
    TAPNActiveStatus INTEGER DEFAULT 1,
    TAPNFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TAPNCode)
);

-- Invoices. TIvoArrears is what is still owed, TIvoCardStatus 1 marks an
-- invoice on the customer's card (counted by the credit check).
CREATE TABLE QD8TARInvoice (
    TIvoNo VARCHAR(30) NOT NULL,
    TIvoDate DATE,
    TIvoDueDate DATE,
    TIvoTARNCode VARCHAR(20),
    TIvoTBraCode VARCHAR(20),
    TIvoRefNo VARCHAR(30),
    TIvoDescription VARCHAR(500) COLLATE THAI,
    TIvoNetAmount NUMERIC(19,4),
    TIvoVATAmount NUMERIC(19,4),
    TIvoAmount NUMERIC(19,4) DEFAULT 0,
    TIvoArrears NUMERIC(19,4) DEFAULT 0,
    TIvoTGLTNo VARCHAR(30),
    TIvoCardStatus INTEGER DEFAULT 1,
    TIvoBillStatus INTEGER DEFAULT 0,
    TIvoCreateBy VARCHAR(50),
    TIvoCreateDate TIMESTAMP,
    TIvoEditCode VARCHAR(50),
    TIvoEditBy VARCHAR(50),
    TIvoEditDate TIMESTAMP,
    TIvoRevision INTEGER DEFAULT 0,
    TIvoConfirmStatus INTEGER DEFAULT 0,
    TIvoConfirmDate TIMESTAMP,
    TIvoConfirmBy VARCHAR(50),
    TIvoApproveStatus INTEGER DEFAULT 0,
    TIvoApproveDate TIMESTAMP,
    TIvoApproveBy VARCHAR(50),
    TIvoApproveNote VARCHAR(500),
    TIvoCancelStatus INTEGER DEFAULT 0,
    TIvoCancelDate TIMESTAMP,
    TIvoCancelBy VARCHAR(50),
    TIvoCancelNote VARCHAR(500),
    TIvoReviseStatus INTEGER DEFAULT 0,
    TIvoReviseBy VARCHAR(50),
    PRIMARY KEY (TIvoNo)
);
CREATE INDEX QD8XARInvoiceCustomer ON QD8TARInvoice (TIvoTARNCode, TIvoDate);
-- The credit check's overdue sum, read from the index alone.
CREATE INDEX QD8XARInvoiceCredit ON QD8TARInvoice (TIvoTARNCode, TIvoCardStatus, TIvoApproveStatus, TIvoCancelStatus, TIvoDate, TIvoArrears);

-- Received cheques. TCHRChqStatus: 0 received, 1 deposited, 2 cleared,
-- 3 returned. TCHRTotalRate is the cheque amount.
CREATE TABLE QD8TChequeRec (
    TCHRNo VARCHAR(30) NOT NULL,
    TCHRChqNo VARCHAR(30),
    TCHRDate DATE,
    TCHRChqDate DATE,
    TCHRTARNCode VARCHAR(20),
    TCHRBankCode VARCHAR(20),
    TCHRBankBranch VARCHAR(200),
    TCHRTotalRate NUMERIC(19,4) DEFAULT 0,
    TCHRChqStatus INTEGER DEFAULT 0,
    TCHRTBraCode VARCHAR(20),
    TCHRDescription VARCHAR(500) COLLATE THAI,
    TCHRFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TCHRNo)
);
-- With the amount: the credit check sums uncleared cheques from the index alone.
CREATE INDEX QD8XChequeRecCustomer ON QD8TChequeRec (TCHRTARNCode, TCHRChqStatus, TCHRTotalRate);

-- Products: product lines carry the user-defined names of their four
-- section levels and four group levels.
CREATE TABLE QD8TProductLine (
    TPDLCode VARCHAR(20) NOT NULL,
    TPDLName VARCHAR(200) COLLATE THAI,
    TPDLName2 VARCHAR(200) COLLATE THAI,
    TPDLSectionName1 VARCHAR(100) COLLATE THAI,
    TPDLSectionName2 VARCHAR(100) COLLATE THAI,
    TPDLSectionName3 VARCHAR(100) COLLATE THAI,
    TPDLSectionName4 VARCHAR(100) COLLATE THAI,
    TPDLGroupName1 VARCHAR(100) COLLATE THAI,
    TPDLGroupName2 VARCHAR(100) COLLATE THAI,
    TPDLGroupName3 VARCHAR(100) COLLATE THAI,
    TPDLGroupName4 VARCHAR(100) COLLATE THAI,
    TPDLSort INTEGER DEFAULT 0,
    TPDLFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TPDLCode)
);

CREATE TABLE QD8TProductSection (
    TPSECode VARCHAR(20) NOT NULL,
    TPSEName VARCHAR(200) COLLATE THAI,
    TPSEName2 VARCHAR(200) COLLATE THAI,
    TPSETPDLCode VARCHAR(20),
    TPSESort INTEGER DEFAULT 0,
    TPSEFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TPSECode)
);

CREATE TABLE QD8TProductSec2 (
    TPS2Code VARCHAR(20) NOT NULL,
    TPS2Name VARCHAR(200) COLLATE THAI,
    TPS2Name2 VARCHAR(200) COLLATE THAI,
    TPS2TPDLCode VARCHAR(20),
    TPS2Sort INTEGER DEFAULT 0,
    TPS2Flag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TPS2Code)
);

CREATE TABLE QD8TProductGroup (
    TPG1Code VARCHAR(20) NOT NULL,
    TPG1Name VARCHAR(200) COLLATE THAI,
    TPG1Name2 VARCHAR(200) COLLATE THAI,
    TPG1TPSECode VARCHAR(20),
    TPG1Sort INTEGER DEFAULT 0,
    TPG1Flag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TPG1Code)
);

-- Units of measure. TUntID is assigned by the database: the column is written
-- as SQLite declares an autonumber key, and Schema turns that declaration into
-- an identity column on PostgreSQL. Rows are inserted without TUntID.
-- Products and documents store the unit's code (TUntCode, unique).
-- TUntRatio is how many base units (pieces, kilograms, litres) one of this
-- unit holds (12 for a dozen), TUntFraction 1 lets quantities in the unit
-- have decimals.
CREATE TABLE QD8TUnit (
    TUntID INTEGER PRIMARY KEY AUTOINCREMENT,
    TUntCode VARCHAR(20) NOT NULL,
    TUntName VARCHAR(200) COLLATE THAI,
    TUntName2 VARCHAR(200) COLLATE THAI,
    TUntRatio DOUBLE PRECISION DEFAULT 1,
    TUntFraction INTEGER DEFAULT 0,
    TUntSort INTEGER DEFAULT 0,
    TUntFlag1 INTEGER DEFAULT 1
);
CREATE UNIQUE INDEX QD8XUnitCode ON QD8TUnit (TUntCode);

-- TPdtTPTTCode is the product type ('PROGRAM' for the program filter).
-- TPdtCost is the standard cost, shown only to users with the right
-- ICINVENTORYCOST.
CREATE TABLE QD8TProduct (
    TPdtCode VARCHAR(30) NOT NULL,
    TPdtName VARCHAR(200) COLLATE THAI,
    TPdtName2 VARCHAR(200) COLLATE THAI,
    TPdtTPTTCode VARCHAR(20),
    TPdtTPDLCode VARCHAR(20),
    TPdtTPSECode VARCHAR(20),
    TPdtTPS2Code VARCHAR(20),
    TPdtTPG1Code VARCHAR(20),
    TPdtTUntCode VARCHAR(20),
    TPdtCost NUMERIC(19,4) DEFAULT 0,
    TPdtActiveStatus INTEGER DEFAULT 1,
    TPdtFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TPdtCode)
);
CREATE INDEX QD8XProductType ON QD8TProduct (TPdtTPTTCode);

-- Production steps of a product, with the quality-check set of each step.
CREATE TABLE QD8TProductMethod (
    TSpdTPdtCode VARCHAR(30) NOT NULL,
    TSpdStep INTEGER NOT NULL,
    TSpdLevel INTEGER DEFAULT 0,
    TSpdTSepCode VARCHAR(20),
    TSpdTQCSCode VARCHAR(20),
    TSpdDescription VARCHAR(500) COLLATE THAI,
    TSpdFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TSpdTPdtCode, TSpdStep)
);

-- Production step names: the document code, section and location of a step.
CREATE TABLE QD8TMRPStepName (
    TSepCode VARCHAR(20) NOT NULL,
    TSepName VARCHAR(200) COLLATE THAI,
    TSepName2 VARCHAR(200) COLLATE THAI,
    TSepDocCode VARCHAR(50),
    TSepTSecCode VARCHAR(20),
    TSepTLctCode VARCHAR(20),
    TSepSort INTEGER DEFAULT 0,
    TSepFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TSepCode)
);

CREATE TABLE QD8TMRPFormulaGrp (
    TMRGCode VARCHAR(20) NOT NULL,
    TMRGName VARCHAR(200) COLLATE THAI,
    TMRGName2 VARCHAR(200) COLLATE THAI,
    TMRGSort INTEGER DEFAULT 0,
    TMRGFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TMRGCode)
);

-- Job orders. TJobCode is the job card, TJobRefNo the sales order the job was
-- made for. Invoiced jobs (TJobInvoiceStatus 1) stay selectable until
-- TJobIVCloseDate.
CREATE TABLE QD8TJob (
    TJobNo VARCHAR(30) NOT NULL,
    TJobCode VARCHAR(30),
    TJobDate DATE,
    TJobDueDate DATE,
    TJobType INTEGER DEFAULT 0,
    TJobTPrjCode VARCHAR(20),
    TJobTARNCode VARCHAR(20),
    TJobCustomerName VARCHAR(200) COLLATE THAI,
    TJobRefNo VARCHAR(30),
    TJobTBraCode VARCHAR(20),
    TJobDescription VARCHAR(500) COLLATE THAI,
    TJobInvoiceStatus INTEGER DEFAULT 0,
    TJobIVCloseDate DATE,
    TJobCloseStatus INTEGER DEFAULT 0,
    TJobCreateBy VARCHAR(50),
    TJobCreateDate TIMESTAMP,
    TJobEditCode VARCHAR(50),
    TJobEditBy VARCHAR(50),
    TJobEditDate TIMESTAMP,
    TJobRevision INTEGER DEFAULT 0,
    TJobConfirmStatus INTEGER DEFAULT 0,
    TJobConfirmDate TIMESTAMP,
    TJobConfirmBy VARCHAR(50),
    TJobApproveStatus INTEGER DEFAULT 0,
    TJobApproveDate TIMESTAMP,
    TJobApproveBy VARCHAR(50),
    TJobApproveNote VARCHAR(500),
    TJobCancelStatus INTEGER DEFAULT 0,
    TJobCancelDate TIMESTAMP,
    TJobCancelBy VARCHAR(50),
    TJobCancelNote VARCHAR(500),
    TJobReviseStatus INTEGER DEFAULT 0,
    TJobReviseBy VARCHAR(50),
    PRIMARY KEY (TJobNo)
);
CREATE INDEX QD8XJobCode ON QD8TJob (TJobCode);
CREATE INDEX QD8XJobProject ON QD8TJob (TJobTPrjCode);

-- Job order lines: the product ordered, three quantities with their units,
-- what is still to be ordered for production, finished and still to be
-- received. TJbMTSOBLn is the sales-order line the job line was made for.
CREATE TABLE QD8TJobSub (
    TJbMTJobNo VARCHAR(30) NOT NULL,
    TJbMLn INTEGER NOT NULL,
    TJbMTPdtCode VARCHAR(30),
    TJbMProductName VARCHAR(200) COLLATE THAI,
    TJbMCustom1 VARCHAR(100),
    TJbMCustom2 VARCHAR(100),
    TJbMCustom3 VARCHAR(100),
    TJbMCustom4 VARCHAR(100),
    TJbMCustom5 VARCHAR(100),
    TJbMQuantity DOUBLE PRECISION DEFAULT 0,
    TJbMQuantity2 DOUBLE PRECISION DEFAULT 0,
    TJbMQuantity3 DOUBLE PRECISION DEFAULT 0,
    TJbMTUntCode VARCHAR(20),
    TJbMTUntCode2 VARCHAR(20),
    TJbMTUntCode3 VARCHAR(20),
    TJbMTotalArrear DOUBLE PRECISION DEFAULT 0,
    TJbMTotalArrear2 DOUBLE PRECISION DEFAULT 0,
    TJbMTotalArrear3 DOUBLE PRECISION DEFAULT 0,
    TJbMFinishQT DOUBLE PRECISION DEFAULT 0,
    TJbMFinishQT2 DOUBLE PRECISION DEFAULT 0,
    TJbMFinishQT3 DOUBLE PRECISION DEFAULT 0,
    TJbMUseOrder DOUBLE PRECISION DEFAULT 0,
    TJbMUseOrder2 DOUBLE PRECISION DEFAULT 0,
    TJbMUseOrder3 DOUBLE PRECISION DEFAULT 0,
    TJbMProcessStatus INTEGER DEFAULT 0,
    TJbMTSOBLn INTEGER,
    TJbMDescription VARCHAR(500) COLLATE THAI,
    PRIMARY KEY (TJbMTJobNo, TJbMLn)
);

-- Steps of a job line.
CREATE TABLE QD8TJobMethod (
    TJstTJbMTJobNo VARCHAR(30) NOT NULL,
    TJstTJbMLn INTEGER NOT NULL,
    TJStLn INTEGER NOT NULL,
    TJStLevel INTEGER DEFAULT 0,
    TJStTSpdStep INTEGER,
    TJStTSepCode VARCHAR(20),
    TJStTPdtCode VARCHAR(30),
    TJStTQCSCode VARCHAR(20),
    TJStDescription VARCHAR(500) COLLATE THAI,
    TJStFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TJstTJbMTJobNo, TJstTJbMLn, TJStLn)
);

-- Production orders, one per job line (TJPDTJobNo, TJPDTJbMLn), for the
-- product TJPDProductCode. TJPdUnitCals.. are the units of the net quantities.
CREATE TABLE QD8TJobProduction (
    TJPDNo VARCHAR(30) NOT NULL,
    TJPDDate DATE,
    TJPDDueDate DATE,
    TJPDTJobNo VARCHAR(30),
    TJPDTJbMLn INTEGER,
    TJPDTBraCode VARCHAR(20),
    TJPDProductCode VARCHAR(30),
    TJPDProductName VARCHAR(200) COLLATE THAI,
    TJPDQuantityNet DOUBLE PRECISION DEFAULT 0,
    TJPDQuantityNet2 DOUBLE PRECISION DEFAULT 0,
    TJPDQuantityNet3 DOUBLE PRECISION DEFAULT 0,
    TJPdUnitCals VARCHAR(20),
    TJPdUnitCals2 VARCHAR(20),
    TJPdUnitCals3 VARCHAR(20),
    TJPDDescription VARCHAR(500) COLLATE THAI,
    TJPDCreateBy VARCHAR(50),
    TJPDCreateDate TIMESTAMP,
    TJPDEditCode VARCHAR(50),
    TJPDEditBy VARCHAR(50),
    TJPDEditDate TIMESTAMP,
    TJPDRevision INTEGER DEFAULT 0,
    TJPDConfirmStatus INTEGER DEFAULT 0,
    TJPDConfirmDate TIMESTAMP,
    TJPDConfirmBy VARCHAR(50),
    TJPDApproveStatus INTEGER DEFAULT 0,
    TJPDApproveDate TIMESTAMP,
    TJPDApproveBy VARCHAR(50),
    TJPDApproveNote VARCHAR(500),
    TJPDCancelStatus INTEGER DEFAULT 0,
    TJPDCancelDate TIMESTAMP,
    TJPDCancelBy VARCHAR(50),
    TJPDCancelNote VARCHAR(500),
    TJPDReviseStatus INTEGER DEFAULT 0,
    TJPDReviseBy VARCHAR(50),
    PRIMARY KEY (TJPDNo)
);
CREATE INDEX QD8XJobProductionJob ON QD8TJobProduction (TJPDTJobNo, TJPDTJbMLn);

-- Production order lines: one per step, with the step's output product,
-- requested, finished and outstanding quantities.
CREATE TABLE QD8TJobProductionSub (
    TJpMTJPDNo VARCHAR(30) NOT NULL,
    TJPMLn INTEGER NOT NULL,
    TJPMTSepCode VARCHAR(20),
    TJPMTPdtCode VARCHAR(30),
    TJPMTQCSCode VARCHAR(20),
    TJPMRequest DOUBLE PRECISION DEFAULT 0,
    TJPMRequest2 DOUBLE PRECISION DEFAULT 0,
    TJPMRequest3 DOUBLE PRECISION DEFAULT 0,
    TJPMTUntCode VARCHAR(20),
    TJPMTUntCode2 VARCHAR(20),
    TJPMTUntCode3 VARCHAR(20),
    TJPMFinishQT DOUBLE PRECISION DEFAULT 0,
    TJPMFinishQT2 DOUBLE PRECISION DEFAULT 0,
    TJPMFinishQT3 DOUBLE PRECISION DEFAULT 0,
    TJPMArrear DOUBLE PRECISION DEFAULT 0,
    TJPMArrear2 DOUBLE PRECISION DEFAULT 0,
    TJPMArrear3 DOUBLE PRECISION DEFAULT 0,
    TJPMProcessStatus INTEGER DEFAULT 0,
    TJPMDescription VARCHAR(500) COLLATE THAI,
    TJPMFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TJpMTJPDNo, TJPMLn)
);

-- Materials of a production order (TMteTJPMLn: the step that uses them).
CREATE TABLE QD8TJobProdMat (
    TMteTJPDNo VARCHAR(30) NOT NULL,
    TMteLn INTEGER NOT NULL,
    TMteTJPMLn INTEGER,
    TMteProductCode VARCHAR(30),
    TMteProductName VARCHAR(200) COLLATE THAI,
    TMteQuantity DOUBLE PRECISION DEFAULT 0,
    TMteQuantity2 DOUBLE PRECISION DEFAULT 0,
    TMteQuantity3 DOUBLE PRECISION DEFAULT 0,
    TMteUntCode VARCHAR(20),
    TMteUntCode2 VARCHAR(20),
    TMteUntCode3 VARCHAR(20),
    PRIMARY KEY (TMteTJPDNo, TMteLn)
);

-- Job order lines with their job, project and customer.
CREATE VIEW QD8VJob AS
SELECT j.TJobNo, j.TJobCode, j.TJobDate, j.TJobDueDate, j.TJobType,
       j.TJobTPrjCode, j.TJobTARNCode, j.TJobCustomerName, j.TJobRefNo,
       j.TJobTBraCode, j.TJobDescription, j.TJobInvoiceStatus, j.TJobIVCloseDate,
       j.TJobCloseStatus, j.TJobConfirmStatus, j.TJobApproveStatus,
       j.TJobApproveNote, j.TJobCancelStatus,
       m.TJbMTJobNo, m.TJbMLn, m.TJbMTPdtCode, m.TJbMProductName,
       m.TJbMCustom1, m.TJbMCustom2, m.TJbMCustom3, m.TJbMCustom4, m.TJbMCustom5,
       m.TJbMQuantity, m.TJbMQuantity2, m.TJbMQuantity3,
       m.TJbMTUntCode, m.TJbMTUntCode2, m.TJbMTUntCode3,
       m.TJbMTotalArrear, m.TJbMTotalArrear2, m.TJbMTotalArrear3,
       m.TJbMFinishQT, m.TJbMFinishQT2, m.TJbMFinishQT3,
       m.TJbMUseOrder, m.TJbMUseOrder2, m.TJbMUseOrder3,
       m.TJbMProcessStatus, m.TJbMTSOBLn, m.TJbMDescription,
       p.TPrjName, p.TPrjName2, c.TARNName, c.TARNName2
FROM QD8TJob j
INNER JOIN QD8TJobSub m ON m.TJbMTJobNo = j.TJobNo
LEFT JOIN QD8TProject p ON j.TJobTPrjCode = p.TPrjCode
LEFT JOIN QD8TAR c ON j.TJobTARNCode = c.TARNCode;

-- Steps of job lines with the job, the step name and the step's section.
CREATE VIEW QD8VJobMethod AS
SELECT j.TJobNo, j.TJobCode, j.TJobDate, j.TJobType, j.TJobTPrjCode,
       j.TJobTARNCode, j.TJobCustomerName, j.TJobCloseStatus,
       j.TJobConfirmStatus, j.TJobApproveStatus, j.TJobCancelStatus,
       m.TJbMLn, m.TJbMTPdtCode, m.TJbMProductName, m.TJbMProcessStatus,
       s.TJstTJbMTJobNo, s.TJstTJbMLn, s.TJStLn, s.TJStLevel, s.TJStTSpdStep,
       s.TJStTSepCode, s.TJStTPdtCode, s.TJStTQCSCode, s.TJStDescription,
       s.TJStFlag1,
       n.TSepName, n.TSepName2, n.TSepDocCode, n.TSepTSecCode, n.TSepTLctCode,
       e.TSecName, e.TSecName2, p.TPrjName, p.TPrjName2
FROM QD8TJobMethod s
INNER JOIN QD8TJob j ON s.TJstTJbMTJobNo = j.TJobNo
INNER JOIN QD8TJobSub m ON m.TJbMTJobNo = s.TJstTJbMTJobNo AND m.TJbMLn = s.TJstTJbMLn
LEFT JOIN QD8TMRPStepName n ON s.TJStTSepCode = n.TSepCode
LEFT JOIN QD8TSection e ON n.TSepTSecCode = e.TSecCode
LEFT JOIN QD8TProject p ON j.TJobTPrjCode = p.TPrjCode;

-- Production order lines with their order and step. VJPMTUntCode.. is the
-- line's unit, or the order's unit where the line names none.
CREATE VIEW QD8VJobProduction AS
SELECT h.TJPDNo, h.TJPDDate, h.TJPDDueDate, h.TJPDTJobNo, h.TJPDTJbMLn,
       h.TJPDTBraCode, h.TJPDProductCode, h.TJPDProductName,
       h.TJPDQuantityNet, h.TJPDQuantityNet2, h.TJPDQuantityNet3,
       h.TJPdUnitCals, h.TJPdUnitCals2, h.TJPdUnitCals3, h.TJPDDescription,
       h.TJPDConfirmStatus, h.TJPDApproveStatus, h.TJPDCancelStatus,
       l.TJpMTJPDNo, l.TJPMLn, l.TJPMTSepCode, l.TJPMTPdtCode, l.TJPMTQCSCode,
       l.TJPMRequest, l.TJPMRequest2, l.TJPMRequest3,
       l.TJPMTUntCode, l.TJPMTUntCode2, l.TJPMTUntCode3,
       COALESCE(l.TJPMTUntCode, h.TJPdUnitCals) AS VJPMTUntCode,
       COALESCE(l.TJPMTUntCode2, h.TJPdUnitCals2) AS VJPMTUntCode2,
       COALESCE(l.TJPMTUntCode3, h.TJPdUnitCals3) AS VJPMTUntCode3,
       l.TJPMFinishQT, l.TJPMFinishQT2, l.TJPMFinishQT3,
       l.TJPMArrear, l.TJPMArrear2, l.TJPMArrear3,
       l.TJPMProcessStatus, l.TJPMDescription, l.TJPMFlag1,
       n.TSepName, n.TSepName2, n.TSepDocCode, n.TSepTSecCode, n.TSepTLctCode,
       j.TJobCode, j.TJobTPrjCode
FROM QD8TJobProductionSub l
INNER JOIN QD8TJobProduction h ON l.TJpMTJPDNo = h.TJPDNo
LEFT JOIN QD8TMRPStepName n ON l.TJPMTSepCode = n.TSepCode
LEFT JOIN QD8TJob j ON h.TJPDTJobNo = j.TJobNo;

-- Production order lines of job lines: the production order pick list of
-- the job selector.
CREATE VIEW QD8VJobProductionM AS
SELECT j.TJobNo, j.TJobCode, j.TJobDate, j.TJobType, j.TJobTPrjCode,
       j.TJobTARNCode, j.TJobCustomerName, j.TJobRefNo, j.TJobInvoiceStatus,
       j.TJobIVCloseDate, j.TJobCloseStatus, j.TJobConfirmStatus,
       j.TJobApproveStatus, j.TJobCancelStatus,
       m.TJbMLn, m.TJbMTPdtCode, m.TJbMProductName, m.TJbMProcessStatus,
       h.TJPDNo, h.TJPDDate, h.TJPDProductCode, h.TJPDProductName,
       h.TJPDQuantityNet, h.TJPDQuantityNet2, h.TJPDQuantityNet3,
       h.TJPdUnitCals, h.TJPdUnitCals2, h.TJPdUnitCals3, h.TJPDDescription,
       h.TJPDConfirmStatus, h.TJPDApproveStatus, h.TJPDCancelStatus,
       l.TJpMTJPDNo, l.TJPMLn, l.TJPMTSepCode, l.TJPMTPdtCode, l.TJPMTQCSCode,
       l.TJPMRequest, l.TJPMRequest2, l.TJPMRequest3,
       COALESCE(l.TJPMTUntCode, h.TJPdUnitCals) AS VJPMTUntCode,
       COALESCE(l.TJPMTUntCode2, h.TJPdUnitCals2) AS VJPMTUntCode2,
       COALESCE(l.TJPMTUntCode3, h.TJPdUnitCals3) AS VJPMTUntCode3,
       l.TJPMFinishQT, l.TJPMFinishQT2, l.TJPMFinishQT3,
       l.TJPMArrear, l.TJPMArrear2, l.TJPMArrear3,
       l.TJPMProcessStatus, l.TJPMDescription,
       n.TSepName, n.TSepName2, n.TSepTSecCode,
       p.TPrjName, p.TPrjName2
FROM QD8TJobProductionSub l
INNER JOIN QD8TJobProduction h ON l.TJpMTJPDNo = h.TJPDNo
INNER JOIN QD8TJob j ON h.TJPDTJobNo = j.TJobNo
INNER JOIN QD8TJobSub m ON m.TJbMTJobNo = h.TJPDTJobNo AND m.TJbMLn = h.TJPDTJbMLn
LEFT JOIN QD8TMRPStepName n ON l.TJPMTSepCode = n.TSepCode
LEFT JOIN QD8TProject p ON j.TJobTPrjCode = p.TPrjCode;

-- Inventory documents (receipts, issues, transfers), told apart by their
-- document code TInvTCodAlias. TInvTEmpCode is the employee who receives the
-- goods of an issue. The job columns hold the job selector's choice for the
-- document.
CREATE TABLE QD8TInventory (
    TInvNo VARCHAR(30) NOT NULL,
    TInvDate DATE,
    TInvDueDate DATE,
    TInvTCodAlias VARCHAR(50),
    TInvTBraCode VARCHAR(20),
    TInvRefNo VARCHAR(30),
    TInvDescription VARCHAR(500) COLLATE THAI,
    TInvTPrjCode VARCHAR(20),
    TInvTEmpCode VARCHAR(20),
    TInvTJobNo VARCHAR(30),
    TInvTJbMLn INTEGER,
    TInvTJstLn INTEGER,
    TInvTMPSNo VARCHAR(30),
    TInvTMPSLn INTEGER,
    TInvTJPDNo VARCHAR(30),
    TInvTJPMLn INTEGER,
    TInvCreateBy VARCHAR(50),
    TInvCreateDate TIMESTAMP,
    TInvEditCode VARCHAR(50),
    TInvEditBy VARCHAR(50),
    TInvEditDate TIMESTAMP,
    TInvRevision INTEGER DEFAULT 0,
    TInvConfirmStatus INTEGER DEFAULT 0,
    TInvConfirmDate TIMESTAMP,
    TInvConfirmBy VARCHAR(50),
    TInvApproveStatus INTEGER DEFAULT 0,
    TInvApproveDate TIMESTAMP,
    TInvApproveBy VARCHAR(50),
    TInvApproveNote VARCHAR(500),
    TInvCancelStatus INTEGER DEFAULT 0,
    TInvCancelDate TIMESTAMP,
    TInvCancelBy VARCHAR(50),
    TInvCancelNote VARCHAR(500),
    TInvReviseStatus INTEGER DEFAULT 0,
    TInvReviseBy VARCHAR(50),
    PRIMARY KEY (TInvNo)
);
CREATE INDEX QD8XInventoryDate ON QD8TInventory (TInvDate);

-- The history of every document the workbench forms save: who did what when
-- (TDcHAction 'Create', 'Edit', 'Confirm', 'Approve', 'Reject', 'Cancel'), what
-- an edit changed ("field: old -> new; ..."), and memoranda ('Memo', the note
-- in TDcHRemark). TDcHTable and TDcHDocNo name the document.
CREATE TABLE QD8TDocHistory (
    TDcHID INTEGER NOT NULL,
    TDcHTable VARCHAR(50) NOT NULL,
    TDcHDocNo VARCHAR(30) NOT NULL,
    TDcHAction VARCHAR(20) NOT NULL,
    TDcHDate TIMESTAMP,
    TDcHBy VARCHAR(50),
    TDcHChanges VARCHAR(4000),
    TDcHRemark VARCHAR(500) COLLATE THAI,
    PRIMARY KEY (TDcHID)
);
CREATE INDEX QD8XDocHistoryDoc ON QD8TDocHistory (TDcHTable, TDcHDocNo);

-- Purchase requests: header and lines. A line may be requested for a job line.
-- TPRDTDivCode/TPRDTDepCode: the division and department that ask.
CREATE TABLE QD8TPR (
    TPRDNo VARCHAR(30) NOT NULL,
    TPRDDate DATE,
    TPRDDueDate DATE,
    TPRDTPrjCode VARCHAR(20),
    TPRDTBraCode VARCHAR(20),
    TPRDTDivCode VARCHAR(20),
    TPRDTDepCode VARCHAR(20),
    TPRDTEmpCode VARCHAR(20),
    TPRDRefNo VARCHAR(30),
    TPRDDescription VARCHAR(500) COLLATE THAI,
    TPRDCreateBy VARCHAR(50),
    TPRDCreateDate TIMESTAMP,
    TPRDEditCode VARCHAR(50),
    TPRDEditBy VARCHAR(50),
    TPRDEditDate TIMESTAMP,
    TPRDRevision INTEGER DEFAULT 0,
    TPRDConfirmStatus INTEGER DEFAULT 0,
    TPRDConfirmDate TIMESTAMP,
    TPRDConfirmBy VARCHAR(50),
    TPRDApproveStatus INTEGER DEFAULT 0,
    TPRDApproveDate TIMESTAMP,
    TPRDApproveBy VARCHAR(50),
    TPRDApproveNote VARCHAR(500),
    TPRDCancelStatus INTEGER DEFAULT 0,
    TPRDCancelDate TIMESTAMP,
    TPRDCancelBy VARCHAR(50),
    TPRDCancelNote VARCHAR(500),
    TPRDReviseStatus INTEGER DEFAULT 0,
    TPRDReviseBy VARCHAR(50),
    PRIMARY KEY (TPRDNo)
);
CREATE INDEX QD8XPRDate ON QD8TPR (TPRDDate);

CREATE TABLE QD8TPRSub (
    TPRMTPRDNo VARCHAR(30) NOT NULL,
    TPRMLn INTEGER NOT NULL,
    TPRMProductCode VARCHAR(30),
    TPRMProductName VARCHAR(200) COLLATE THAI,
    TPRMFactoryCode VARCHAR(50),
    TPRMCustom1 VARCHAR(100),
    TPRMCustom2 VARCHAR(100),
    TPRMCustom3 VARCHAR(100),
    TPRMQuantity DOUBLE PRECISION DEFAULT 0,
    TPRMQuantity2 DOUBLE PRECISION DEFAULT 0,
    TPRMQuantity3 DOUBLE PRECISION DEFAULT 0,
    TPRMTUntCode VARCHAR(20),
    TPRMTUntCode2 VARCHAR(20),
    TPRMTUntCode3 VARCHAR(20),
    TPRMTotalArrear DOUBLE PRECISION DEFAULT 0,
    TPRMTotalArrear2 DOUBLE PRECISION DEFAULT 0,
    TPRMTotalArrear3 DOUBLE PRECISION DEFAULT 0,
    TPRMTJobNo VARCHAR(30),
    TPRMTJbMLn INTEGER,
    TPRMDescription VARCHAR(500) COLLATE THAI,
    PRIMARY KEY (TPRMTPRDNo, TPRMLn)
);
CREATE INDEX QD8XPRSubJob ON QD8TPRSub (TPRMTJobNo, TPRMTJbMLn);

-- Purchase-request lines with their request, project and job.
CREATE VIEW QD8VPR AS
SELECT h.TPRDNo, h.TPRDDate, h.TPRDDueDate, h.TPRDTPrjCode, h.TPRDTBraCode,
       h.TPRDTDivCode, h.TPRDTEmpCode, h.TPRDRefNo, h.TPRDDescription,
       h.TPRDConfirmStatus, h.TPRDApproveStatus, h.TPRDApproveNote,
       h.TPRDCancelStatus,
       l.TPRMTPRDNo, l.TPRMLn, l.TPRMProductCode, l.TPRMProductName,
       l.TPRMFactoryCode, l.TPRMCustom1, l.TPRMCustom2, l.TPRMCustom3,
       l.TPRMQuantity, l.TPRMQuantity2, l.TPRMQuantity3,
       l.TPRMTUntCode, l.TPRMTUntCode2, l.TPRMTUntCode3,
       l.TPRMTotalArrear, l.TPRMTotalArrear2, l.TPRMTotalArrear3,
       l.TPRMTJobNo, l.TPRMTJbMLn, l.TPRMDescription,
       j.TJobCode, j.TJobTARNCode, j.TJobCustomerName,
       p.TPrjName, p.TPrjName2
FROM QD8TPR h
INNER JOIN QD8TPRSub l ON l.TPRMTPRDNo = h.TPRDNo
LEFT JOIN QD8TJob j ON l.TPRMTJobNo = j.TJobNo
LEFT JOIN QD8TProject p ON h.TPRDTPrjCode = p.TPrjCode;

-- Purchase orders to suppliers. TPODRefNo is the purchase request the order
-- was made from, TPODBillStatus 1 once the supplier's invoice is recorded.
CREATE TABLE QD8TPO (
    TPODNo VARCHAR(30) NOT NULL,
    TPODDate DATE,
    TPODDueDate DATE,
    TPODTAPNCode VARCHAR(20),
    TPODTBraCode VARCHAR(20),
    TPODTPrjCode VARCHAR(20),
    TPODRefNo VARCHAR(30),
    TPODDescription VARCHAR(500) COLLATE THAI,
    TPODTotalAmount NUMERIC(19,4) DEFAULT 0,
    TPODBillStatus INTEGER DEFAULT 0,
    TPODCreateBy VARCHAR(50),
    TPODCreateDate TIMESTAMP,
    TPODEditCode VARCHAR(50),
    TPODEditBy VARCHAR(50),
    TPODEditDate TIMESTAMP,
    TPODRevision INTEGER DEFAULT 0,
    TPODConfirmStatus INTEGER DEFAULT 0,
    TPODConfirmDate TIMESTAMP,
    TPODConfirmBy VARCHAR(50),
    TPODApproveStatus INTEGER DEFAULT 0,
    TPODApproveDate TIMESTAMP,
    TPODApproveBy VARCHAR(50),
    TPODApproveNote VARCHAR(500),
    TPODCancelStatus INTEGER DEFAULT 0,
    TPODCancelDate TIMESTAMP,
    TPODCancelBy VARCHAR(50),
    TPODCancelNote VARCHAR(500),
    TPODReviseStatus INTEGER DEFAULT 0,
    TPODReviseBy VARCHAR(50),
    PRIMARY KEY (TPODNo)
);
CREATE INDEX QD8XPODate ON QD8TPO (TPODDate);
CREATE INDEX QD8XPOSupplier ON QD8TPO (TPODTAPNCode, TPODDate);

-- The supplier's acknowledgement of a purchase order (one row per order, none
-- until the supplier answers). TPO2Acknowledge 1: acknowledged, read by the
-- arrival alerts of the purchase-order list.
CREATE TABLE QD8TPO2 (
    TPO2TPODNo VARCHAR(30) NOT NULL,
    TPO2Acknowledge INTEGER DEFAULT 0,
    TPO2AckDate TIMESTAMP,
    TPO2AckBy VARCHAR(200) COLLATE THAI,
    PRIMARY KEY (TPO2TPODNo)
);

-- Sales documents: header and lines. TSOType tells the kind of sales
-- document (2: a repair/service order, whose TInvTJobNo holds the point-usage
-- document it spends).
CREATE TABLE QD8TSO (
    TSODNo VARCHAR(30) NOT NULL,
    TSOType INTEGER DEFAULT 0,
    TSODDate DATE,
    TSODDueDate DATE,
    TSODTARNCode VARCHAR(20),
    TSODContactName VARCHAR(200) COLLATE THAI,
    TSODRefNo VARCHAR(30),
    TSODTBraCode VARCHAR(20),
    TSODTPrjCode VARCHAR(20),
    TSODSaleCode VARCHAR(20),
    TSODDescription VARCHAR(500) COLLATE THAI,
    TSODTotalAmount NUMERIC(19,4) DEFAULT 0,
    TSODBillStatus INTEGER DEFAULT 0,
    TSODTCS1Code VARCHAR(50),
    TInvTJobNo VARCHAR(30),
    TSODCreateBy VARCHAR(50),
    TSODCreateDate TIMESTAMP,
    TSODEditCode VARCHAR(50),
    TSODEditBy VARCHAR(50),
    TSODEditDate TIMESTAMP,
    TSODRevision INTEGER DEFAULT 0,
    TSODConfirmStatus INTEGER DEFAULT 0,
    TSODConfirmDate TIMESTAMP,
    TSODConfirmBy VARCHAR(50),
    TSODApproveStatus INTEGER DEFAULT 0,
    TSODApproveDate TIMESTAMP,
    TSODApproveBy VARCHAR(50),
    TSODApproveNote VARCHAR(500),
    TSODCancelStatus INTEGER DEFAULT 0,
    TSODCancelDate TIMESTAMP,
    TSODCancelBy VARCHAR(50),
    TSODCancelNote VARCHAR(500),
    TSODReviseStatus INTEGER DEFAULT 0,
    TSODReviseBy VARCHAR(50),
    PRIMARY KEY (TSODNo)
);
CREATE INDEX QD8XSOCustomer ON QD8TSO (TSODTARNCode, TSODDate);

CREATE TABLE QD8TSOSub (
    TSOBTSODNo VARCHAR(30) NOT NULL,
    TSOBLn INTEGER NOT NULL,
    TSOBTPOSCode VARCHAR(30),
    TSOBPOSName VARCHAR(200) COLLATE THAI,
    TSOBCustom1 VARCHAR(100),
    TSOBCustom2 VARCHAR(100),
    TSOBCustom3 VARCHAR(100),
    TSOBQuantity DOUBLE PRECISION DEFAULT 0,
    TSOBQuantity2 DOUBLE PRECISION DEFAULT 0,
    TSOBQuantity3 DOUBLE PRECISION DEFAULT 0,
    TSOBTUntCode VARCHAR(20),
    TSOBTUntCode2 VARCHAR(20),
    TSOBTUntCode3 VARCHAR(20),
    TSOBTotalArrear DOUBLE PRECISION DEFAULT 0,
    TSOBTotalArrear2 DOUBLE PRECISION DEFAULT 0,
    TSOBTotalArrear3 DOUBLE PRECISION DEFAULT 0,
    TSOBPrice NUMERIC(19,4) DEFAULT 0,
    TSOBAmount NUMERIC(19,4) DEFAULT 0,
    TSOBDescription VARCHAR(500) COLLATE THAI,
    PRIMARY KEY (TSOBTSODNo, TSOBLn)
);

-- Sales-order lines with their order and customer.
CREATE VIEW QD8VSO AS
SELECT h.TSODNo, h.TSOType, h.TSODDate, h.TSODDueDate, h.TSODTARNCode,
       h.TSODContactName, h.TSODRefNo, h.TSODTBraCode, h.TSODTPrjCode,
       h.TSODSaleCode, h.TSODDescription, h.TSODTotalAmount, h.TSODBillStatus,
       h.TSODConfirmStatus, h.TSODApproveStatus, h.TSODApproveNote,
       h.TSODCancelStatus,
       l.TSOBTSODNo, l.TSOBLn, l.TSOBTPOSCode, l.TSOBPOSName,
       l.TSOBCustom1, l.TSOBCustom2, l.TSOBCustom3,
       l.TSOBQuantity, l.TSOBQuantity2, l.TSOBQuantity3,
       l.TSOBTUntCode, l.TSOBTUntCode2, l.TSOBTUntCode3,
       l.TSOBTotalArrear, l.TSOBTotalArrear2, l.TSOBTotalArrear3,
       l.TSOBPrice, l.TSOBAmount, l.TSOBDescription,
       c.TARNName, c.TARNName2
FROM QD8TSO h
INNER JOIN QD8TSOSub l ON l.TSOBTSODNo = h.TSODNo
LEFT JOIN QD8TAR c ON h.TSODTARNCode = c.TARNCode;

-- Loyalty points: point documents and their lines. TPiTType is the kind of
-- sales document that may spend the points, TPiTRefNo the document that
-- already did.
CREATE TABLE QD8TPointTrans (
    TPiTNo VARCHAR(30) NOT NULL,
    TPiTDate DATE,
    TPiTType INTEGER DEFAULT 0,
    TPiTTARNCode VARCHAR(20),
    TPiTTotalQuantity DOUBLE PRECISION DEFAULT 0,
    TPiTRefNo VARCHAR(30),
    TPiTTBraCode VARCHAR(20),
    TPiTDescription VARCHAR(500) COLLATE THAI,
    TPiTCreateBy VARCHAR(50),
    TPiTCreateDate TIMESTAMP,
    TPiTEditCode VARCHAR(50),
    TPiTEditBy VARCHAR(50),
    TPiTEditDate TIMESTAMP,
    TPiTRevision INTEGER DEFAULT 0,
    TPiTConfirmStatus INTEGER DEFAULT 0,
    TPiTConfirmDate TIMESTAMP,
    TPiTConfirmBy VARCHAR(50),
    TPiTApproveStatus INTEGER DEFAULT 0,
    TPiTApproveDate TIMESTAMP,
    TPiTApproveBy VARCHAR(50),
    TPiTApproveNote VARCHAR(500),
    TPiTCancelStatus INTEGER DEFAULT 0,
    TPiTCancelDate TIMESTAMP,
    TPiTCancelBy VARCHAR(50),
    TPiTCancelNote VARCHAR(500),
    TPiTReviseStatus INTEGER DEFAULT 0,
    TPiTReviseBy VARCHAR(50),
    PRIMARY KEY (TPiTNo)
);
CREATE INDEX QD8XPointTransCustomer ON QD8TPointTrans (TPiTTARNCode, TPiTType);

CREATE TABLE QD8TPointTransSub (
    TPoTTPitNo VARCHAR(30) NOT NULL,
    TPoTLn INTEGER NOT NULL,
    TPoTQuantity DOUBLE PRECISION DEFAULT 0,
    TPoTPax DOUBLE PRECISION DEFAULT 0,
    TPoTValue NUMERIC(19,4) DEFAULT 0,
    TPoTDescription VARCHAR(500) COLLATE THAI,
    PRIMARY KEY (TPoTTPitNo, TPoTLn)
);

-- Point documents with the customer's name.
CREATE VIEW QD8VPointTransH AS
SELECT h.TPiTNo, h.TPiTDate, h.TPiTType, h.TPiTTARNCode, h.TPiTTotalQuantity,
       h.TPiTRefNo, h.TPiTTBraCode, h.TPiTDescription, h.TPiTConfirmStatus,
       h.TPiTApproveStatus, h.TPiTCancelStatus,
       c.TARNName, c.TARNName2
FROM QD8TPointTrans h
LEFT JOIN QD8TAR c ON h.TPiTTARNCode = c.TARNCode;

-- Point document lines with their document.
CREATE VIEW QD8VPointTrans AS
SELECT h.TPiTNo, h.TPiTDate, h.TPiTType, h.TPiTTARNCode, h.TPiTRefNo,
       h.TPiTDescription, h.TPiTApproveStatus, h.TPiTCancelStatus,
       l.TPoTTPitNo, l.TPoTLn, l.TPoTQuantity, l.TPoTPax, l.TPoTValue,
       l.TPoTDescription
FROM QD8TPointTransSub l
INNER JOIN QD8TPointTrans h ON l.TPoTTPitNo = h.TPiTNo;

-- Totals of a point document's lines.
CREATE VIEW QD8VPointTransSum AS
SELECT l.TPoTTPitNo,
       SUM(l.TPoTQuantity) AS TPoTQuantity,
       SUM(l.TPoTPax) AS TPoTPax,
       SUM(l.TPoTValue) AS TPoTValue,
       COUNT(*) AS TPoTLineCount
FROM QD8TPointTransSub l
GROUP BY l.TPoTTPitNo;
