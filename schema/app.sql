-- QD8Command.dat: the application database.
-- Holds the command catalogue, the command groups (modules) and every piece of
-- metadata the controls are driven by: quick forms, option definitions, custom
-- code lists, list definitions, document codes and report filters.
-- Reached through AppConnectionString (and through the ConnectionString of the
-- quick form editor and the custom code editor, which name this database).
--
-- Runs unchanged on SQLite and PostgreSQL. Texts that people read and that
-- lists sort by carry COLLATE THAI, codes and keys do not.

-- Command groups (modules): GL, AR, IC ... and the hidden group CENTER whose
-- option groups are offered to every module by the host and user option editors.
CREATE TABLE QD8TCommandGroup (
    TCmGAlias VARCHAR(20) NOT NULL,
    TCmGName VARCHAR(200) COLLATE THAI,
    TCmGName2 VARCHAR(200) COLLATE THAI,
    TCmGIcon VARCHAR(100),
    TCmGSort INTEGER DEFAULT 0,
    TCmGShow INTEGER DEFAULT 1,
    TCmGFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TCmGAlias)
);

-- One row per launchable command. Lunch carries TCmdAlias.
-- TCmdType: F form, R report (the two kinds a user may put on his own list),
-- P program, W web page (its address: the [OEM] key named after the alias).
CREATE TABLE QD8TCommand (
    TCmdID INTEGER NOT NULL,
    TCmdAlias VARCHAR(50) NOT NULL,
    TCmdName VARCHAR(200) COLLATE THAI,
    TCmdName2 VARCHAR(200) COLLATE THAI,
    TCmdTCmGAlias VARCHAR(20),
    TCmdType VARCHAR(1) DEFAULT 'F',
    TCmdReportNo VARCHAR(20),
    TCmdIcon VARCHAR(100),
    TCmdSmallIcon VARCHAR(100),
    TCmdSort INTEGER DEFAULT 0,
    TCmdShowListBar INTEGER DEFAULT 1,
    TCmdHRFilter INTEGER DEFAULT 0,
    TCmdActiveStatus INTEGER DEFAULT 1,
    TCmdFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TCmdID)
);
CREATE UNIQUE INDEX QD8XCommandAlias ON QD8TCommand (TCmdAlias);
CREATE INDEX QD8XCommandGroup ON QD8TCommand (TCmdTCmGAlias, TCmdSort);

-- Commands with their group, for the command pickers.
-- TCmdReportno2 is the report number as shown in a picker: never Null.
CREATE VIEW QD8VCommand AS
SELECT c.TCmdID, c.TCmdAlias, c.TCmdName, c.TCmdName2, c.TCmdTCmGAlias,
       c.TCmdType, c.TCmdReportNo, c.TCmdIcon, c.TCmdSmallIcon, c.TCmdSort,
       c.TCmdShowListBar, c.TCmdHRFilter, c.TCmdActiveStatus, c.TCmdFlag1,
       COALESCE(c.TCmdReportNo, '') AS TCmdReportno2,
       g.TCmGAlias, g.TCmGName, g.TCmGName2, g.TCmGIcon, g.TCmGSort,
       g.TCmGShow, g.TCmGFlag1
FROM QD8TCommand c
INNER JOIN QD8TCommandGroup g ON c.TCmdTCmGAlias = g.TCmGAlias;

-- Quick forms: one row per simple master table editable without a form of its
-- own. TQFmTCmGAlias is the module whose quick-form group offers the form.
-- A form left at its defaults may add and delete rows and is not read-only.
-- TQFmPrintTCmdAlias names the catalogue command that prints the form; left
-- empty, TQFMMasterReportNo 1 or 2 prints the form's first two or three
-- columns as a plain code list, 0 offers no printing.
CREATE TABLE QD8TQuickForm (
    TQFmAlias VARCHAR(50) NOT NULL,
    TQFmCaption VARCHAR(200) COLLATE THAI,
    TQFmCaption2 VARCHAR(200) COLLATE THAI,
    TQFmTCmGAlias VARCHAR(20),
    TQFmTable VARCHAR(100),
    TQFmView VARCHAR(500),
    TQFmKeyIDEN VARCHAR(20),
    TQFmPKList VARCHAR(200),
    TQFmWhere VARCHAR(2000),
    TQFmOrder VARCHAR(500),
    TQFMMasterReportNo INTEGER DEFAULT 0,
    TQFmDeleteAuto INTEGER DEFAULT 0,
    TQFmDeleteTable VARCHAR(100),
    TQFmDeleteField VARCHAR(100),
    TQFmDeleteMessage VARCHAR(500),
    TQFmRunQuickForm VARCHAR(50),
    TQFmFieldFilter VARCHAR(100),
    TQFmFieldReturn VARCHAR(100),
    TQFmPrintTCmdAlias VARCHAR(50),
    TQFmCanAdd INTEGER DEFAULT 1,
    TQFmCanDelete INTEGER DEFAULT 1,
    TQFmReadOnly INTEGER DEFAULT 0,
    TQFmSort INTEGER DEFAULT 0,
    TQFmFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TQFmAlias)
);
CREATE INDEX QD8XQuickFormGroup ON QD8TQuickForm (TQFmTCmGAlias);

-- Columns of a quick form (TQFFTQFmAlias) or of a custom code list
-- (TQFFTCusCode), in TQFFSort order. TQFFID is the row's own key because a
-- row belongs either to a quick form or to a code list.
-- TQFFFieldType: TEXT, NUMBER, LABELLIST, YESNO or AUTONUMBER (a key the
-- database assigns, never written by the editor). A row that leaves a flag
-- out gets what a user expects of a plain column: it may be left blank,
-- changed after saving and hold the same value as another row (a key is kept
-- unique by the table itself). TQFFTitleAlign/TQFFRowAlign: 0 left, 1 right,
-- 2 centre, Null the type's own (numbers right, text left).
CREATE TABLE QD8TQuickField (
    TQFFID INTEGER NOT NULL,
    TQFFTQFmAlias VARCHAR(50),
    TQFFTCusCode VARCHAR(50),
    TQFFSort INTEGER DEFAULT 0,
    TQFFFieldName VARCHAR(100),
    TQFFCaption VARCHAR(200) COLLATE THAI,
    TQFFCaption2 VARCHAR(200) COLLATE THAI,
    TQFFFieldType VARCHAR(20) DEFAULT 'TEXT',
    TQFFPrimaryKey INTEGER DEFAULT 0,
    TQFFDecimal INTEGER DEFAULT 0,
    TQFFMinCon INTEGER DEFAULT 0,
    TQFFMinValue DOUBLE PRECISION DEFAULT 0,
    TQFFMaxCon INTEGER DEFAULT 0,
    TQFFMaxValue DOUBLE PRECISION DEFAULT 0,
    TQFFMaxlength INTEGER DEFAULT 0,
    TQFFCanDuplicate INTEGER DEFAULT 1,
    TQFFCanBlank INTEGER DEFAULT 1,
    TQFFCanEdit INTEGER DEFAULT 1,
    TQFFCanDeleteAlias VARCHAR(50),
    TQFFWidth INTEGER DEFAULT 1000,
    TQFFTitleAlign INTEGER,
    TQFFRowAlign INTEGER,
    TQFFLabelList VARCHAR(2000),
    TQFFDefaultValue VARCHAR(200),
    TQFFDefaultText VARCHAR(200),
    TQFFRunQuickForm VARCHAR(50),
    TQFFFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TQFFID)
);
CREATE INDEX QD8XQuickFieldForm ON QD8TQuickField (TQFFTQFmAlias, TQFFSort);
CREATE INDEX QD8XQuickFieldCode ON QD8TQuickField (TQFFTCusCode, TQFFSort);

-- Quick forms of a module: only forms whose module exists.
CREATE VIEW QD8VQuickGroup AS
SELECT f.TQFmAlias, f.TQFmCaption, f.TQFmCaption2, f.TQFmTable, f.TQFmView,
       f.TQFmKeyIDEN, f.TQFmPKList, f.TQFmSort, f.TQFmFlag1,
       g.TCmGAlias, g.TCmGName, g.TCmGName2, g.TCmGSort, g.TCmGShow, g.TCmGFlag1
FROM QD8TQuickForm f
INNER JOIN QD8TCommandGroup g ON f.TQFmTCmGAlias = g.TCmGAlias;

-- Every quick form, bound to a module or not. A form without a module (or
-- whose module row is missing) counts as belonging to an active group.
CREATE VIEW QD8VQuickGroupBK AS
SELECT f.TQFmAlias, f.TQFmCaption, f.TQFmCaption2, f.TQFmTable, f.TQFmView,
       f.TQFmKeyIDEN, f.TQFmPKList, f.TQFmSort, f.TQFmFlag1,
       COALESCE(g.TCmGAlias, f.TQFmTCmGAlias, '') AS TCmGAlias,
       g.TCmGName, g.TCmGName2,
       COALESCE(g.TCmGSort, 0) AS TCmGSort,
       COALESCE(g.TCmGShow, 1) AS TCmGShow,
       COALESCE(g.TCmGFlag1, 1) AS TCmGFlag1
FROM QD8TQuickForm f
LEFT JOIN QD8TCommandGroup g ON f.TQFmTCmGAlias = g.TCmGAlias;

-- Option groups and the modules they belong to.
CREATE TABLE QD8TOptionGroup (
    TOpGAlias VARCHAR(50) NOT NULL,
    TOpGName VARCHAR(200) COLLATE THAI,
    TOpGName2 VARCHAR(200) COLLATE THAI,
    TOpGTCmGAlias VARCHAR(20),
    TOpGShowBranch INTEGER DEFAULT 0,
    TOpGShowHost INTEGER DEFAULT 0,
    TOpGShowUser INTEGER DEFAULT 0,
    TOpGSort INTEGER DEFAULT 0,
    TOpGFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TOpGAlias)
);
CREATE INDEX QD8XOptionGroupModule ON QD8TOptionGroup (TOpGTCmGAlias);

CREATE VIEW QD8VOptionGroup AS
SELECT o.TOpGAlias, o.TOpGName, o.TOpGName2, o.TOpGTCmGAlias,
       o.TOpGShowBranch, o.TOpGShowHost, o.TOpGShowUser, o.TOpGSort, o.TOpGFlag1,
       g.TCmGAlias, g.TCmGName, g.TCmGName2, g.TCmGSort, g.TCmGShow, g.TCmGFlag1
FROM QD8TOptionGroup o
INNER JOIN QD8TCommandGroup g ON o.TOpGTCmGAlias = g.TCmGAlias;

-- Option definitions, one table per scope with the same columns under the
-- scope's prefix: company (TOpt), branch (TBOp), workstation (THop), user (TUOp).
-- TOptDefaultValue/TOptDefaultText is the value taken while no value has been
-- stored for the scope (stored values live in QD8TOptionValue of the data database).
CREATE TABLE QD8TOption (
    TOptAlias VARCHAR(50) NOT NULL,
    TOptTOpGAlias VARCHAR(50),
    TOptName VARCHAR(500) COLLATE THAI,
    TOptName2 VARCHAR(500) COLLATE THAI,
    TOptFieldType VARCHAR(20) DEFAULT 'TEXT',
    TOptDecimal INTEGER DEFAULT 0,
    TOptCanBlank INTEGER DEFAULT 1,
    TOptCanEdit INTEGER DEFAULT 1,
    TOptDefaultValue VARCHAR(2000),
    TOptDefaultText VARCHAR(500),
    TOptLabelList VARCHAR(2000),
    TOptRunQuickForm VARCHAR(50),
    TOptMode INTEGER DEFAULT 0,
    TOptSort INTEGER DEFAULT 0,
    TOptFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TOptAlias)
);
CREATE INDEX QD8XOptionGroupOf ON QD8TOption (TOptTOpGAlias);

CREATE TABLE QD8TBranchOption (
    TBOpAlias VARCHAR(50) NOT NULL,
    TBOpTOpGAlias VARCHAR(50),
    TBOpName VARCHAR(500) COLLATE THAI,
    TBOpName2 VARCHAR(500) COLLATE THAI,
    TBOpFieldType VARCHAR(20) DEFAULT 'TEXT',
    TBOpDecimal INTEGER DEFAULT 0,
    TBOpCanBlank INTEGER DEFAULT 1,
    TBOpCanEdit INTEGER DEFAULT 1,
    TBOpDefaultValue VARCHAR(2000),
    TBOpDefaultText VARCHAR(500),
    TBOpLabelList VARCHAR(2000),
    TBOpRunQuickForm VARCHAR(50),
    TBOpMode INTEGER DEFAULT 0,
    TBOpSort INTEGER DEFAULT 0,
    TBOpFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TBOpAlias)
);
CREATE INDEX QD8XBranchOptionGroupOf ON QD8TBranchOption (TBOpTOpGAlias);

CREATE TABLE QD8THostOption (
    THopAlias VARCHAR(50) NOT NULL,
    THopTOpGAlias VARCHAR(50),
    THopName VARCHAR(500) COLLATE THAI,
    THopName2 VARCHAR(500) COLLATE THAI,
    THopFieldType VARCHAR(20) DEFAULT 'TEXT',
    THopDecimal INTEGER DEFAULT 0,
    THopCanBlank INTEGER DEFAULT 1,
    THopCanEdit INTEGER DEFAULT 1,
    THopDefaultValue VARCHAR(2000),
    THopDefaultText VARCHAR(500),
    THopLabelList VARCHAR(2000),
    THopRunQuickForm VARCHAR(50),
    THopMode INTEGER DEFAULT 0,
    THopSort INTEGER DEFAULT 0,
    THopFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (THopAlias)
);
CREATE INDEX QD8XHostOptionGroupOf ON QD8THostOption (THopTOpGAlias);

CREATE TABLE QD8TUserOption (
    TUOpAlias VARCHAR(50) NOT NULL,
    TUOpTOpGAlias VARCHAR(50),
    TUOpName VARCHAR(500) COLLATE THAI,
    TUOpName2 VARCHAR(500) COLLATE THAI,
    TUOpFieldType VARCHAR(20) DEFAULT 'TEXT',
    TUOpDecimal INTEGER DEFAULT 0,
    TUOpCanBlank INTEGER DEFAULT 1,
    TUOpCanEdit INTEGER DEFAULT 1,
    TUOpDefaultValue VARCHAR(2000),
    TUOpDefaultText VARCHAR(500),
    TUOpLabelList VARCHAR(2000),
    TUOpRunQuickForm VARCHAR(50),
    TUOpMode INTEGER DEFAULT 0,
    TUOpSort INTEGER DEFAULT 0,
    TUOpFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TUOpAlias)
);
CREATE INDEX QD8XUserOptionGroupOf ON QD8TUserOption (TUOpTOpGAlias);

-- Company options with their group and module. Options whose group or module
-- is missing are kept (the module columns are then Null).
CREATE VIEW QD8VOption AS
SELECT o.TOptAlias, o.TOptTOpGAlias, o.TOptName, o.TOptName2, o.TOptFieldType,
       o.TOptDecimal, o.TOptCanBlank, o.TOptCanEdit, o.TOptDefaultValue,
       o.TOptDefaultText, o.TOptLabelList, o.TOptRunQuickForm, o.TOptMode,
       o.TOptSort, o.TOptFlag1,
       p.TOpGName, p.TOpGName2, p.TOpGSort, p.TOpGFlag1,
       g.TCmGAlias, g.TCmGName, g.TCmGName2, g.TCmGFlag1
FROM QD8TOption o
LEFT JOIN QD8TOptionGroup p ON o.TOptTOpGAlias = p.TOpGAlias
LEFT JOIN QD8TCommandGroup g ON p.TOpGTCmGAlias = g.TCmGAlias;

-- Custom code lists: many small code/description lists kept in QD8TCustom1 of
-- the data database, told apart by TCusCode. TCusMode names the family of
-- lists (the custom code editor's RemarkMode). TCusDeleteTable/TCusDeleteField name
-- the document column that refers to a code of the list: a code found there is not
-- deleted (TCusDeleteMessage says why).
CREATE TABLE QD8TCustomData (
    TCusCode VARCHAR(50) NOT NULL,
    TCusName VARCHAR(200) COLLATE THAI,
    TCusName2 VARCHAR(200) COLLATE THAI,
    TCusTCmGAlias VARCHAR(20),
    TCusMaxLen INTEGER DEFAULT 20,
    TCusPKList VARCHAR(200),
    TCusTable VARCHAR(100),
    TCusWhere VARCHAR(2000),
    TCusOrder VARCHAR(500),
    TCusMode INTEGER DEFAULT 0,
    TCusDeleteTable VARCHAR(100),
    TCusDeleteField VARCHAR(100),
    TCusDeleteMessage VARCHAR(500) COLLATE THAI,
    TCusSort INTEGER DEFAULT 0,
    TCusFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TCusCode)
);
CREATE INDEX QD8XCustomDataModule ON QD8TCustomData (TCusTCmGAlias);

CREATE VIEW QD8VCustomData AS
SELECT c.TCusCode, c.TCusName, c.TCusName2, c.TCusTCmGAlias, c.TCusMaxLen,
       c.TCusPKList, c.TCusTable, c.TCusWhere, c.TCusOrder, c.TCusMode,
       c.TCusSort, c.TCusFlag1,
       g.TCmGAlias, g.TCmGName, g.TCmGName2, g.TCmGSort, g.TCmGFlag1
FROM QD8TCustomData c
LEFT JOIN QD8TCommandGroup g ON c.TCusTCmGAlias = g.TCmGAlias;

-- Document codes (document kinds): the table and key of a list over a code
-- table, and what a document of the kind requires of the job selector
-- (job, master schedule and production order levels).
CREATE TABLE QD8TCode (
    TCodAlias VARCHAR(50) NOT NULL,
    TCodName VARCHAR(200) COLLATE THAI,
    TCodName2 VARCHAR(200) COLLATE THAI,
    TCodTCmGAlias VARCHAR(20),
    TCodTable VARCHAR(100),
    TCodPrimaryKey VARCHAR(100),
    TCodJobMode INTEGER DEFAULT 0,
    TCodMDSMode INTEGER DEFAULT 0,
    TCodPDMode INTEGER DEFAULT 0,
    TCodSort INTEGER DEFAULT 0,
    TCodFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TCodAlias)
);

-- List definitions of the document list and the master list, one row per
-- list, keyed by the alias of the command that opens it. Every column is read
-- as text by a single-value lookup, the counts and switches are numbers.
CREATE TABLE QD8TFormDocList (
    TFDLTCmdAlias VARCHAR(50) NOT NULL,
    TFDLTCodAlias VARCHAR(50),
    TFDLBACKDAYLIST VARCHAR(200),
    TFDLPrimaryKeyList VARCHAR(500),
    TFDLColumnList VARCHAR(4000),
    TFDLNameList VARCHAR(4000),
    TFDLNameList2 VARCHAR(4000),
    TFDLWidthList VARCHAR(2000),
    TFDLRowHeight INTEGER DEFAULT 0,
    TFDLTypeList VARCHAR(1000),
    TFDLQuery VARCHAR(4000),
    TFDLOrderList VARCHAR(2000),
    TFDLOrderList2 VARCHAR(2000),
    TFDLOrderQuery VARCHAR(2000),
    TFDLFilterCustom VARCHAR(2000),
    TFDLFilterCustom2 VARCHAR(2000),
    TFDLFilterCustomW VARCHAR(2000),
    TFDLFilter1 VARCHAR(200),
    TFDLFilter1W VARCHAR(2000),
    TFDLFilter2 VARCHAR(200),
    TFDLFilter2F VARCHAR(200),
    TFDLFilter2F2 VARCHAR(200),
    TFDLFilter3 VARCHAR(200),
    TFDLFilter3F VARCHAR(200),
    TFDLFilter3F2 VARCHAR(200),
    TFDLFilterEmployee VARCHAR(200),
    TFDLFilterEmpLabel VARCHAR(200),
    TFDLFilterEmpLabel2 VARCHAR(200),
    TFDLFilterAR VARCHAR(200),
    TFDLFilterARByEmp INTEGER DEFAULT 0,
    TFDLFilterAP VARCHAR(200),
    TFDLFilterDivision VARCHAR(200),
    TFDLFilterProject VARCHAR(200),
    TFDLFilterProduct VARCHAR(200),
    TFDLFilterProductM INTEGER DEFAULT 0,
    TFDLFilterProductG VARCHAR(200),
    TFDLFilterProductT INTEGER DEFAULT 0,
    TFDLFilterBackDate INTEGER DEFAULT 0,
    TFDLFilterDeliveryDate VARCHAR(200),
    TFDLFilterArrear VARCHAR(2000),
    TFDLFilterArrearC VARCHAR(200),
    TFDLFilterArrearC2 VARCHAR(200),
    TFDLFilterInvArr VARCHAR(2000),
    TFDLFilterInvArrC VARCHAR(200),
    TFDLFilterInvArrC2 VARCHAR(200),
    TFDLFilterStatus VARCHAR(500),
    TFDLFilterStatusL VARCHAR(2000),
    TFDLFilterStatusL12 VARCHAR(2000),
    TFDLFilterStatus2 VARCHAR(500),
    TFDLFilterStatusL2 VARCHAR(2000),
    TFDLFilterStatusL22 VARCHAR(2000),
    TFDLFilterDate VARCHAR(200),
    TFDLFilterDateC VARCHAR(200),
    TFDLFilterDateC2 VARCHAR(200),
    TFDLLegendList VARCHAR(4000),
    TFDLLegendList2 VARCHAR(4000),
    TFDLFormDetail VARCHAR(100),
    TFDLFormFunction VARCHAR(200),
    TFDLDefaultFilter INTEGER DEFAULT 0,
    TFDLDefaultOrder INTEGER DEFAULT 0,
    TFDLSwitchOption VARCHAR(500),
    TFDLExtraSearch VARCHAR(2000),
    TFDLDeleteAction INTEGER DEFAULT 0,
    TFDLDeleteActionC VARCHAR(200),
    TFDLDeleteActionC2 VARCHAR(200),
    TFDLAutoRefresh VARCHAR(50),
    TFDLButtonMode VARCHAR(50),
    TFDLFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TFDLTCmdAlias)
);

-- Report filter lines: the criteria offered on a report's filter screen,
-- grouped by report group, in TRpFSort order. TRpFCondition is the comparison
-- the criterion turns into ("=", "LIKE", "BETWEEN", ">=", "<=", "IN").
-- TRpFLabelList2 holds the English labels of TRpFLabelList's codes.
CREATE TABLE QD8TReportFilter (
    TRpFID INTEGER NOT NULL,
    TRpFReportGroup VARCHAR(50) NOT NULL,
    TRpFSort INTEGER DEFAULT 0,
    TRpFFieldName VARCHAR(100),
    TRpFCaption VARCHAR(200) COLLATE THAI,
    TRpFCaption2 VARCHAR(200) COLLATE THAI,
    TRpFFieldType VARCHAR(20) DEFAULT 'TEXT',
    TRpFCondition VARCHAR(20) DEFAULT '=',
    TRpFLabelList VARCHAR(2000),
    TRpFLabelList2 VARCHAR(2000),
    TRpFRunQuickForm VARCHAR(50),
    TRpFDefaultValue VARCHAR(200),
    TRpFCanBlank INTEGER DEFAULT 1,
    TRpFFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TRpFID)
);
CREATE INDEX QD8XReportFilterGroup ON QD8TReportFilter (TRpFReportGroup, TRpFSort);

-- Report filter lines with the pick list (quick form) that serves a criterion.
CREATE VIEW QD8VReportFilter AS
SELECT r.TRpFID, r.TRpFReportGroup, r.TRpFSort, r.TRpFFieldName,
       r.TRpFCaption, r.TRpFCaption2, r.TRpFFieldType, r.TRpFCondition,
       r.TRpFLabelList, r.TRpFLabelList2, r.TRpFRunQuickForm, r.TRpFDefaultValue,
       r.TRpFCanBlank, r.TRpFFlag1,
       q.TQFmCaption, q.TQFmCaption2, q.TQFmView, q.TQFmPKList, q.TQFmKeyIDEN
FROM QD8TReportFilter r
LEFT JOIN QD8TQuickForm q ON r.TRpFRunQuickForm = q.TQFmAlias;

-- Module diagrams: a drawn picture of a module's process with its commands placed
-- on it. One QD8TDiagram row per module that has a drawing; its steps and arrows
-- in the two tables below. A module without a row is laid out automatically.
-- TDgmBackground: a file in the image folder, or a resource path (":/...").
-- TDgmWidth, TDgmHeight: the drawing's size in points at 96 dpi; steps are placed
-- in the same units.
CREATE TABLE QD8TDiagram (
    TDgmTCmGAlias VARCHAR(20) NOT NULL,
    TDgmName VARCHAR(200) COLLATE THAI,
    TDgmName2 VARCHAR(200) COLLATE THAI,
    TDgmBackground VARCHAR(200),
    TDgmWidth INTEGER DEFAULT 800,
    TDgmHeight INTEGER DEFAULT 500,
    TDgmFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TDgmTCmGAlias)
);

-- One step of a diagram: a command placed with its centre at (TDgIX, TDgIY).
-- TDgICaption, TDgICaption2 replace the catalogue caption when not Null.
CREATE TABLE QD8TDiagramItem (
    TDgITCmGAlias VARCHAR(20) NOT NULL,
    TDgITCmdAlias VARCHAR(50) NOT NULL,
    TDgIX INTEGER DEFAULT 0,
    TDgIY INTEGER DEFAULT 0,
    TDgICaption VARCHAR(200) COLLATE THAI,
    TDgICaption2 VARCHAR(200) COLLATE THAI,
    TDgISort INTEGER DEFAULT 0,
    TDgIFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TDgITCmGAlias, TDgITCmdAlias)
);

-- An arrow from one step to the next, both named by their command alias.
CREATE TABLE QD8TDiagramArrow (
    TDgATCmGAlias VARCHAR(20) NOT NULL,
    TDgAFromTCmdAlias VARCHAR(50) NOT NULL,
    TDgAToTCmdAlias VARCHAR(50) NOT NULL,
    TDgAFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TDgATCmGAlias, TDgAFromTCmdAlias, TDgAToTCmdAlias)
);

-- Report layouts: what a report command prints. TRpLQuery is the SELECT on the
-- company data; the criteria of TRpLReportGroup go where it says {FILTER} (after
-- a WHERE of its own), else after it as a WHERE. "{N}" in the query, order,
-- group fields and column fields is the language's name suffix.
CREATE TABLE QD8TReportLayout (
    TRpLTCmdAlias VARCHAR(50) NOT NULL,
    TRpLReportGroup VARCHAR(50),
    TRpLQuery VARCHAR(4000),
    TRpLOrder VARCHAR(500),
    TRpLGroupField VARCHAR(100),
    TRpLGroupCaptionField VARCHAR(100),
    TRpLLandscape INTEGER DEFAULT 0,
    TRpLFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TRpLTCmdAlias)
);

-- The columns of a report layout in TRpCSort order. TRpCKind: TEXT, INTEGER,
-- QUANTITY, MONEY or DATE; TRpCTotal 1 sums the column per group and in all.
CREATE TABLE QD8TReportColumn (
    TRpCTCmdAlias VARCHAR(50) NOT NULL,
    TRpCSort INTEGER NOT NULL,
    TRpCFieldName VARCHAR(100),
    TRpCCaption VARCHAR(200) COLLATE THAI,
    TRpCCaption2 VARCHAR(200) COLLATE THAI,
    TRpCKind VARCHAR(20) DEFAULT 'TEXT',
    TRpCTotal INTEGER DEFAULT 0,
    TRpCWidth INTEGER DEFAULT 10,
    PRIMARY KEY (TRpCTCmdAlias, TRpCSort)
);
