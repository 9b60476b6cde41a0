-- Sample company: company data database (QD8Data.dat), session part.
-- User 0 is the administrator and template user, user 1 works in Thai,
-- user 2 in English. The passwords of users 1 and 2 are 1234.

INSERT INTO QD8TUser (TUsrID, TUsrLoginName, TUsrLoginPassword, TUsrName, TUsrName2, TUsrTEmpCode, TUsrProjectLevel, TUsrActiveStatus, TUsrCreateDate, TUsrFlag1) VALUES (0, 'ADMIN', '', 'ผู้ดูแลระบบ', 'Administrator', NULL, 9, 1, '2026-01-02 08:00:00', 1);
INSERT INTO QD8TUser (TUsrID, TUsrLoginName, TUsrLoginPassword, TUsrName, TUsrName2, TUsrTEmpCode, TUsrProjectLevel, TUsrActiveStatus, TUsrCreateDate, TUsrFlag1) VALUES (1, 'SOMCHAI', 'sha256:03ac674216f3e15c761ee1a5e255f067953623c8b388b4459e13f978d7c846f4', 'สมชาย ใจดี', 'Somchai Jaidee', 'E001', 1, 1, '2026-01-02 08:30:00', 1);
INSERT INTO QD8TUser (TUsrID, TUsrLoginName, TUsrLoginPassword, TUsrName, TUsrName2, TUsrTEmpCode, TUsrProjectLevel, TUsrActiveStatus, TUsrCreateDate, TUsrFlag1) VALUES (2, 'JOHN', 'sha256:03ac674216f3e15c761ee1a5e255f067953623c8b388b4459e13f978d7c846f4', 'จอห์น สมิธ', 'John Smith', 'E002', 1, 1, '2026-01-02 08:45:00', 1);

-- Language and ribbon theme per user.
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (0, 'LanguageID', '0');
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (1, 'LanguageID', '0');
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (2, 'LanguageID', '1');
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (0, 'RibbonTheme', '0');
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (2, 'RibbonTheme', '2');

-- Rights. The administrator may do everything. Somchai may not use the
-- trial balance at all. John may not delete, unpass or pass invoices and
-- does not see inventory cost. A command is listed only when TURtRun and
-- TURtShow are both exactly 1, and a command without a row is no right at all.
-- user 0
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLJV', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLCHART', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLBOOK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLTB', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARCUSTOMER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARINVOICE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARCHEQUE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARCREDIT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARAGING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICPRODUCT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICISSUEUSE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PURPR', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICSTOCK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
-- the retired ICCOUNT and the commands of the other modules, hidden ones included
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICCOUNT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLRECURRING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLCLOSE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLLEDGER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLPROFIT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLBUDGET', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARRECEIPT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARCREDITNOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARBILLING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARSTATEMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICTRANSFER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICWAREHOUSE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICMOVEMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'APVENDOR', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'APINVOICE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'APPAYMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'APCHEQUE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'APDEBITNOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'APAGING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'APWHT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'APPAYDUE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PUPO', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PURECEIVE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PURETURN', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PUQUOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PUCOMPARE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PUHISTORY', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PUOUTSTANDING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PUPORTAL', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOQUOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOORDER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SODELIVERY', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOCASH', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOPRICE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOPROMO', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOSUMMARY', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOMARKETING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOCOMMISSION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'CRMDAILYAPPOINTMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOCRM', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HREMPLOYEE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HRLEAVE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HROT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HRCHANGEWORKPERIOD', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HRTIME', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HRPAYROLL', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HRPAYSLIP', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HRLEAVESUM', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HRTRAINING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'FAASSET', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'FATRANSFER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'FADISPOSAL', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'FADEPRECIATION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'FASCHEDULE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'CENTERTODAY', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'CENTERUSER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
-- user 1
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLJV', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLCHART', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLBOOK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLTB', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ARCUSTOMER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ARINVOICE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ARCHEQUE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ARCREDIT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ARAGING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICPRODUCT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICISSUEUSE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PURPR', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICSTOCK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
-- Payroll belongs to the HR department: Somchai has no right on HRPAYROLL and
-- HRPAYSLIP (all 0). He may run cash sales from a sales document but does not
-- want them listed (TURtShow 0). He has no rows for the fixed-asset and
-- CENTER commands, so they never show for him.
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLRECURRING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLCLOSE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLLEDGER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLPROFIT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLBUDGET', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ARRECEIPT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ARCREDITNOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ARBILLING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ARSTATEMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICTRANSFER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICWAREHOUSE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICMOVEMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'APVENDOR', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'APINVOICE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'APPAYMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'APCHEQUE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'APDEBITNOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'APAGING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'APWHT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'APPAYDUE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PUPO', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PURECEIVE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PURETURN', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PUQUOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PUCOMPARE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PUHISTORY', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PUOUTSTANDING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PUPORTAL', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOQUOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOORDER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SODELIVERY', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOCASH', 1, 0, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOPRICE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOPROMO', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOSUMMARY', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOMARKETING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOCOMMISSION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'CRMDAILYAPPOINTMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOCRM', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HREMPLOYEE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HRLEAVE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HROT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HRCHANGEWORKPERIOD', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HRTIME', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HRPAYROLL', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HRPAYSLIP', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HRLEAVESUM', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HRTRAINING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
-- user 2
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'GLJV', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'GLCHART', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'GLBOOK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'GLTB', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ARCUSTOMER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ARINVOICE', 1, 1, 1, 0, 0, 1, 1, 1, 0, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ARCHEQUE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ARCREDIT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ARAGING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ICPRODUCT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ICISSUEUSE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PURPR', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ICSTOCK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
-- John may not close periods, see the profit and loss statement or pay
-- vendors (all 0). His purchase-order right came in from another system as 2,
-- which is no list right. He may not delete sales orders. Of human resources
-- he has only the self-service forms, and no rows for fixed assets or CENTER.
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'GLRECURRING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'GLCLOSE', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'GLLEDGER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'GLPROFIT', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'GLBUDGET', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ARRECEIPT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ARCREDITNOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ARBILLING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ARSTATEMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ICTRANSFER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ICWAREHOUSE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ICMOVEMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'APVENDOR', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'APINVOICE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'APPAYMENT', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'APCHEQUE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'APDEBITNOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'APAGING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'APWHT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'APPAYDUE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PUPO', 2, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PURECEIVE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PURETURN', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PUQUOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PUCOMPARE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PUHISTORY', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PUOUTSTANDING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PUPORTAL', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SOQUOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SOORDER', 1, 1, 1, 0, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SODELIVERY', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SOCASH', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SOPRICE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SOPROMO', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SOSUMMARY', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SOMARKETING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SOCOMMISSION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'CRMDAILYAPPOINTMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SOCRM', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'HRLEAVE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'HROT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'HRCHANGEWORKPERIOD', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'HRTIME', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
-- a right that is no command: seeing inventory cost columns
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICINVENTORYCOST', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICINVENTORYCOST', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ICINVENTORYCOST', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);

-- Commands each module shows. The retired ICCOUNT (399) is listed but
-- not in use, so the module list skips it.
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('GL', 101, 1);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('GL', 104, 2);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('GL', 103, 3);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('GL', 105, 4);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('GL', 107, 5);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('GL', 108, 6);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('GL', 106, 7);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AR', 202, 1);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AR', 203, 2);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AR', 204, 3);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AR', 201, 4);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AR', 206, 5);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AR', 207, 6);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AR', 208, 7);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AR', 209, 8);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 302, 1);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 303, 2);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 399, 3);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 301, 4);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 304, 5);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 305, 6);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 306, 7);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 307, 8);
-- Payables names command 499, which the catalogue does not have: the list
-- skips it. Purchasing shares the purchase request (303) with inventory, human
-- resources lists the retired HRTRAINING (709), which does not show.
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AP', 401, 1);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AP', 402, 2);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AP', 403, 3);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AP', 404, 4);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AP', 406, 5);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AP', 407, 6);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AP', 408, 7);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AP', 499, 8);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('PU', 501, 1);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('PU', 502, 2);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('PU', 503, 3);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('PU', 504, 4);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('PU', 303, 5);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('PU', 505, 6);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('PU', 507, 7);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('SO', 601, 1);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('SO', 602, 2);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('SO', 603, 3);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('SO', 604, 4);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('SO', 605, 5);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('SO', 606, 6);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('SO', 607, 7);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('SO', 608, 8);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('SO', 609, 9);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('SO', 610, 10);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('HR', 701, 1);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('HR', 702, 2);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('HR', 703, 3);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('HR', 704, 4);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('HR', 705, 5);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('HR', 707, 6);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('HR', 708, 7);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('HR', 709, 8);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('FA', 801, 1);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('FA', 802, 2);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('FA', 803, 3);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('FA', 804, 4);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('FA', 805, 5);

-- Own command lists. The list of Somchai holds the trial balance he may not
-- use and the cash sales he does not want listed, which therefore do not show.
-- The list of John holds the purchase order whose run right is 2, which does
-- not show either.
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (0, 102, 1);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (0, 201, 2);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (0, 401, 3);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (0, 602, 4);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (0, 701, 5);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (0, 801, 6);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, 101, 1);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, 202, 2);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, 104, 3);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, 107, 4);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, 206, 5);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, 403, 6);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, 604, 7);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (2, 202, 1);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (2, 304, 2);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (2, 601, 3);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (2, 602, 4);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (2, 501, 5);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (2, 702, 6);

-- Branches, employee types and the employees behind the sample users: SOMCHAI works at
-- head office, JOHN at the Chiang Mai branch and sees only office staff and sales people.
INSERT INTO QD8TBranch (TBraCode, TBraName, TBraName2, TBraSort, TBraFlag1) VALUES ('HQ', 'สำนักงานใหญ่', 'Head Office', 1, 1);
INSERT INTO QD8TBranch (TBraCode, TBraName, TBraName2, TBraSort, TBraFlag1) VALUES ('CNX', 'สาขาเชียงใหม่', 'Chiang Mai Branch', 2, 1);
INSERT INTO QD8TEmployeeType (TEmTCode, TEmTName, TEmTName2, TEmTSort, TEmTFlag1) VALUES ('01', 'พนักงานสำนักงาน', 'Office Staff', 1, 1);
INSERT INTO QD8TEmployeeType (TEmTCode, TEmTName, TEmTName2, TEmTSort, TEmTFlag1) VALUES ('02', 'พนักงานขาย', 'Sales', 2, 1);
INSERT INTO QD8TEmployeeType (TEmTCode, TEmTName, TEmTName2, TEmTSort, TEmTFlag1) VALUES ('03', 'ผู้บริหาร', 'Management', 3, 1);
INSERT INTO QD8TEmployeeType (TEmTCode, TEmTName, TEmTName2, TEmTSort, TEmTFlag1) VALUES ('04', 'พนักงานรายวัน', 'Daily Workers', 4, 0);
INSERT INTO QD8TEmployee (TEmpCode, TEmpFullName, TEmpFullName2, TEmpTEmTCode, TEmpTBraCode, TEmpStartDate, TEmpActiveStatus, TEmpFlag1) VALUES ('E001', 'สมชาย ใจดี', 'Somchai Jaidee', '03', 'HQ', '2019-04-01', 1, 1);
INSERT INTO QD8TEmployee (TEmpCode, TEmpFullName, TEmpFullName2, TEmpTEmTCode, TEmpTBraCode, TEmpStartDate, TEmpActiveStatus, TEmpFlag1) VALUES ('E002', 'จอห์น สมิธ', 'John Smith', '01', 'CNX', '2021-08-16', 1, 1);
INSERT INTO QD8TEmployee (TEmpCode, TEmpFullName, TEmpFullName2, TEmpTEmTCode, TEmpTBraCode, TEmpStartDate, TEmpActiveStatus, TEmpFlag1) VALUES ('E003', 'มาลี ศรีสุข', 'Malee Srisuk', '02', 'CNX', '2023-01-09', 1, 1);
INSERT INTO QD8TEmployee (TEmpCode, TEmpFullName, TEmpFullName2, TEmpTEmTCode, TEmpTBraCode, TEmpStartDate, TEmpActiveStatus, TEmpFlag1) VALUES ('E004', 'ประยุทธ มั่นคง', 'Prayut Mankong', '04', 'HQ', '2024-06-03', 1, 1);
INSERT INTO QD8TUserEmpType (TUEtTUsrID, TUEtLevel, TUEtTEmTCode) VALUES (2, 0, '01');
INSERT INTO QD8TUserEmpType (TUEtTUsrID, TUEtLevel, TUEtTEmTCode) VALUES (2, 0, '02');

-- SOMCHAI sees documents waiting for approval only when their note is empty or "ฝ่ายบัญชี".
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (1, 'ApproveNoteFilter', '1');
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (1, 'ApproveNoteValue', 'ฝ่ายบัญชี');

-- Company option values and the voucher numbers already taken this month.
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('COMPANY', '', 'ARCREDITBALANCEIGNORECHEQUE', '0', 0, 'ADMIN', '2026-01-02 09:00:00');
INSERT INTO QD8TRunningNumber (TRunKey, TRunSubKey, TRunLastNo, TRunEditDate) VALUES ('DAILYRECORDCALL', 'JV2611', 12, '2026-11-20 17:10:00');

-- Rights on the quick-form commands: everybody may maintain the master tables.
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'DIVISION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'DEPARTMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SECTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'EMPTYPE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'BRANCH', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PROJECT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PRODUCTLINE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PRODUCTSECTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PRODUCTGROUP1', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'DIVISION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'DEPARTMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SECTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'EMPTYPE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'BRANCH', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PROJECT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PRODUCTLINE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PRODUCTSECTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PRODUCTGROUP1', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'DIVISION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'DEPARTMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SECTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'EMPTYPE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'BRANCH', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PROJECT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PRODUCTLINE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PRODUCTSECTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PRODUCTGROUP1', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('HR', 710, 20);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('HR', 711, 21);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 311, 20);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, 710, 20);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (2, 311, 20);

-- Master rows of the quick forms; a few not in use (Flag1 0).
INSERT INTO QD8TDivision (TDivCode, TDivName, TDivName2, TDivSort, TDivFlag1) VALUES ('D01', 'บัญชีและการเงิน', 'Accounting & Finance', 1, 1);
INSERT INTO QD8TDivision (TDivCode, TDivName, TDivName2, TDivSort, TDivFlag1) VALUES ('D02', 'ขายและการตลาด', 'Sales & Marketing', 2, 1);
INSERT INTO QD8TDivision (TDivCode, TDivName, TDivName2, TDivSort, TDivFlag1) VALUES ('D03', 'ปฏิบัติการ', 'Operations', 3, 1);
INSERT INTO QD8TDivision (TDivCode, TDivName, TDivName2, TDivSort, TDivFlag1) VALUES ('D09', 'ฝ่ายเดิม (เลิกใช้)', 'Former Division', 9, 0);
INSERT INTO QD8TDepartment (TDepCode, TDepName, TDepName2, TDepTDivCode, TDepSort, TDepFlag1) VALUES ('P11', 'บัญชีทั่วไป', 'General Accounting', 'D01', 1, 1);
INSERT INTO QD8TDepartment (TDepCode, TDepName, TDepName2, TDepTDivCode, TDepSort, TDepFlag1) VALUES ('P12', 'การเงิน', 'Treasury', 'D01', 2, 1);
INSERT INTO QD8TDepartment (TDepCode, TDepName, TDepName2, TDepTDivCode, TDepSort, TDepFlag1) VALUES ('P21', 'ขายในประเทศ', 'Domestic Sales', 'D02', 3, 1);
INSERT INTO QD8TDepartment (TDepCode, TDepName, TDepName2, TDepTDivCode, TDepSort, TDepFlag1) VALUES ('P31', 'คลังสินค้า', 'Warehouse', 'D03', 4, 1);
INSERT INTO QD8TSection (TSecCode, TSecName, TSecName2, TSecTDepCode, TSecSort, TSecFlag1) VALUES ('S111', 'เจ้าหนี้', 'Payables', 'P11', 1, 1);
INSERT INTO QD8TSection (TSecCode, TSecName, TSecName2, TSecTDepCode, TSecSort, TSecFlag1) VALUES ('S112', 'ลูกหนี้', 'Receivables', 'P11', 2, 1);
INSERT INTO QD8TSection (TSecCode, TSecName, TSecName2, TSecTDepCode, TSecSort, TSecFlag1) VALUES ('S311', 'รับสินค้า', 'Receiving', 'P31', 1, 1);
INSERT INTO QD8TProject (TPrjCode, TPrjName, TPrjName2, TPrjLevel, TPrjFlag1) VALUES ('PJ01', 'ขยายสาขาเชียงใหม่', 'Chiang Mai Expansion', 1, 1);
INSERT INTO QD8TProject (TPrjCode, TPrjName, TPrjName2, TPrjLevel, TPrjFlag1) VALUES ('PJ02', 'ระบบบัญชีใหม่', 'New Accounting System', 2, 1);
INSERT INTO QD8TProductLine (TPDLCode, TPDLName, TPDLName2, TPDLSectionName1, TPDLGroupName1, TPDLSort, TPDLFlag1) VALUES ('L1', 'เครื่องใช้ไฟฟ้า', 'Appliances', 'หมวดเครื่องใช้', 'กลุ่มเครื่องใช้', 1, 1);
INSERT INTO QD8TProductLine (TPDLCode, TPDLName, TPDLName2, TPDLSectionName1, TPDLGroupName1, TPDLSort, TPDLFlag1) VALUES ('L2', 'วัสดุก่อสร้าง', 'Building Materials', 'หมวดวัสดุ', 'กลุ่มวัสดุ', 2, 1);
INSERT INTO QD8TProductSection (TPSECode, TPSEName, TPSEName2, TPSETPDLCode, TPSESort, TPSEFlag1) VALUES ('E10', 'เครื่องใช้ในครัว', 'Kitchen', 'L1', 1, 1);
INSERT INTO QD8TProductSection (TPSECode, TPSEName, TPSEName2, TPSETPDLCode, TPSESort, TPSEFlag1) VALUES ('E20', 'เครื่องปรับอากาศ', 'Air Conditioning', 'L1', 2, 1);
INSERT INTO QD8TProductSection (TPSECode, TPSEName, TPSEName2, TPSETPDLCode, TPSESort, TPSEFlag1) VALUES ('B10', 'ปูนซีเมนต์', 'Cement', 'L2', 3, 1);
INSERT INTO QD8TProductGroup (TPG1Code, TPG1Name, TPG1Name2, TPG1TPSECode, TPG1Sort, TPG1Flag1) VALUES ('G101', 'หม้อหุงข้าว', 'Rice Cookers', 'E10', 1, 1);
INSERT INTO QD8TProductGroup (TPG1Code, TPG1Name, TPG1Name2, TPG1TPSECode, TPG1Sort, TPG1Flag1) VALUES ('G102', 'ไมโครเวฟ', 'Microwaves', 'E10', 2, 1);
INSERT INTO QD8TProductGroup (TPG1Code, TPG1Name, TPG1Name2, TPG1TPSECode, TPG1Sort, TPG1Flag1) VALUES ('G201', 'แอร์ติดผนัง', 'Wall Air Conditioners', 'E20', 1, 1);

-- Rights on the journal books, the units, the quick-form group of each module and the
-- organisation report. John has no HR reports, so he has no row for the report and
-- cannot launch it when he prints the departments.
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'JOURNALBOOK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLQUICK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'UNIT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICQUICK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HRQUICK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HRORGANIZATION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'JOURNALBOOK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLQUICK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'UNIT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICQUICK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HRQUICK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HRORGANIZATION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'JOURNALBOOK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'GLQUICK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'UNIT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ICQUICK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'HRQUICK', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
-- The group commands are among the commands each module shows.
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('GL', 112, 30);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 314, 30);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('HR', 715, 30);

-- Units of measure, inserted without TUntID: the database numbers them (on
-- PostgreSQL an explicit key would not move the identity on and the next
-- unit added in the editor would collide with it).
INSERT INTO QD8TUnit (TUntCode, TUntName, TUntName2, TUntRatio, TUntFraction, TUntSort, TUntFlag1) VALUES ('PCS', 'ชิ้น', 'Piece', 1, 0, 1, 1);
INSERT INTO QD8TUnit (TUntCode, TUntName, TUntName2, TUntRatio, TUntFraction, TUntSort, TUntFlag1) VALUES ('DOZ', 'โหล', 'Dozen', 12, 0, 2, 1);
INSERT INTO QD8TUnit (TUntCode, TUntName, TUntName2, TUntRatio, TUntFraction, TUntSort, TUntFlag1) VALUES ('BOX', 'กล่อง', 'Box', 24, 0, 3, 1);
INSERT INTO QD8TUnit (TUntCode, TUntName, TUntName2, TUntRatio, TUntFraction, TUntSort, TUntFlag1) VALUES ('KG', 'กิโลกรัม', 'Kilogram', 1, 1, 4, 1);
INSERT INTO QD8TUnit (TUntCode, TUntName, TUntName2, TUntRatio, TUntFraction, TUntSort, TUntFlag1) VALUES ('G', 'กรัม', 'Gram', 0.001, 1, 5, 1);
INSERT INTO QD8TUnit (TUntCode, TUntName, TUntName2, TUntRatio, TUntFraction, TUntSort, TUntFlag1) VALUES ('L', 'ลิตร', 'Litre', 1, 1, 6, 1);
INSERT INTO QD8TUnit (TUntCode, TUntName, TUntName2, TUntRatio, TUntFraction, TUntSort, TUntFlag1) VALUES ('REAM', 'รีม', 'Ream', 500, 0, 7, 0);

-- Journal books: general, receipts, payments and sales, and the purchase book no
-- longer in use.
INSERT INTO QD8TGLBook (TGLBCode, TGLBName, TGLBName2, TGLBSort, TGLBFlag1) VALUES ('JV', 'สมุดรายวันทั่วไป', 'General Journal', 1, 1);
INSERT INTO QD8TGLBook (TGLBCode, TGLBName, TGLBName2, TGLBSort, TGLBFlag1) VALUES ('RV', 'สมุดรายวันรับเงิน', 'Cash Receipts Journal', 2, 1);
INSERT INTO QD8TGLBook (TGLBCode, TGLBName, TGLBName2, TGLBSort, TGLBFlag1) VALUES ('PV', 'สมุดรายวันจ่ายเงิน', 'Cash Payments Journal', 3, 1);
INSERT INTO QD8TGLBook (TGLBCode, TGLBName, TGLBName2, TGLBSort, TGLBFlag1) VALUES ('SV', 'สมุดรายวันขาย', 'Sales Journal', 4, 1);
INSERT INTO QD8TGLBook (TGLBCode, TGLBName, TGLBName2, TGLBSort, TGLBFlag1) VALUES ('PU', 'สมุดรายวันซื้อ', 'Purchases Journal', 5, 0);
