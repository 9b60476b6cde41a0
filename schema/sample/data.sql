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
INSERT INTO QD8TEmployee (TEmpCode, TEmpFullName, TEmpFullName2, TEmpTEmTCode, TEmpTBraCode, TEmpStartDate, TEmpActiveStatus, TEmpFlag1, TEmpTDivCode, TEmpTDepCode, TEmpTSecCode) VALUES ('E001', 'สมชาย ใจดี', 'Somchai Jaidee', '03', 'HQ', '2019-04-01', 1, 1, 'D01', 'P11', 'S111');
INSERT INTO QD8TEmployee (TEmpCode, TEmpFullName, TEmpFullName2, TEmpTEmTCode, TEmpTBraCode, TEmpStartDate, TEmpActiveStatus, TEmpFlag1, TEmpTDivCode, TEmpTDepCode, TEmpTSecCode) VALUES ('E002', 'จอห์น สมิธ', 'John Smith', '01', 'CNX', '2021-08-16', 1, 1, 'D02', 'P21', NULL);
INSERT INTO QD8TEmployee (TEmpCode, TEmpFullName, TEmpFullName2, TEmpTEmTCode, TEmpTBraCode, TEmpStartDate, TEmpActiveStatus, TEmpFlag1, TEmpTDivCode, TEmpTDepCode, TEmpTSecCode) VALUES ('E003', 'มาลี ศรีสุข', 'Malee Srisuk', '02', 'CNX', '2023-01-09', 1, 1, 'D03', 'P31', 'S311');
INSERT INTO QD8TEmployee (TEmpCode, TEmpFullName, TEmpFullName2, TEmpTEmTCode, TEmpTBraCode, TEmpStartDate, TEmpActiveStatus, TEmpFlag1, TEmpTDivCode, TEmpTDepCode, TEmpTSecCode) VALUES ('E004', 'ประยุทธ มั่นคง', 'Prayut Mankong', '04', 'HQ', '2024-06-03', 1, 1, 'D01', 'P12', NULL);
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

-- Customers with their salesman (TAR2SaleCode: Malee E003, Somchai E001, John E002)
-- and one former customer no longer in use.
INSERT INTO QD8TAR (TARNCode, TARNName, TARNName2, TARNTaxID, TARNTelephone, TARNTBraCode, TARNCreditDay, TARNCreditLimit, TARNFlag1) VALUES ('C001', 'บริษัท เชียงใหม่ค้าวัสดุ จำกัด', 'Chiang Mai Materials Co., Ltd.', '0505561000111', '053-211-450', 'CNX', 30, 500000, 1);
INSERT INTO QD8TAR (TARNCode, TARNName, TARNName2, TARNTaxID, TARNTelephone, TARNTBraCode, TARNCreditDay, TARNCreditLimit, TARNFlag1) VALUES ('C002', 'ห้างหุ้นส่วนจำกัด สยามเครื่องครัว', 'Siam Kitchenware Ltd. Part.', '0103559000222', '02-644-1820', 'HQ', 30, 300000, 1);
INSERT INTO QD8TAR (TARNCode, TARNName, TARNName2, TARNTaxID, TARNTelephone, TARNTBraCode, TARNCreditDay, TARNCreditLimit, TARNFlag1) VALUES ('C003', 'บริษัท ลำพูนก่อสร้าง จำกัด', 'Lamphun Construction Co., Ltd.', '0515560000333', '053-510-077', 'CNX', 60, 800000, 1);
INSERT INTO QD8TAR (TARNCode, TARNName, TARNName2, TARNTaxID, TARNTelephone, TARNTBraCode, TARNCreditDay, TARNCreditLimit, TARNFlag1) VALUES ('C004', 'ร้านรุ่งเรืองการไฟฟ้า', 'Rungruang Electric Shop', '3100500444444', '02-411-9032', 'HQ', 0, 0, 1);
INSERT INTO QD8TAR (TARNCode, TARNName, TARNName2, TARNTaxID, TARNTelephone, TARNTBraCode, TARNCreditDay, TARNCreditLimit, TARNFlag1) VALUES ('C005', 'บริษัท กรุงเทพแอร์เซอร์วิส จำกัด', 'Bangkok Air Service Co., Ltd.', '0105562000555', '02-939-5500', 'HQ', 45, 1000000, 1);
INSERT INTO QD8TAR (TARNCode, TARNName, TARNName2, TARNTaxID, TARNTelephone, TARNTBraCode, TARNCreditDay, TARNCreditLimit, TARNFlag1) VALUES ('C009', 'ลูกค้าเดิม (เลิกติดต่อ)', 'Former Customer', NULL, NULL, 'HQ', 0, 0, 0);
INSERT INTO QD8TAR2 (TAR2TARNCode, TAR2SaleCode, TAR2ContactName, TAR2Flag1) VALUES ('C001', 'E003', 'คุณวิชัย แก้วมูล', 1);
INSERT INTO QD8TAR2 (TAR2TARNCode, TAR2SaleCode, TAR2ContactName, TAR2Flag1) VALUES ('C002', 'E001', 'คุณสุดา พงษ์ไทย', 1);
INSERT INTO QD8TAR2 (TAR2TARNCode, TAR2SaleCode, TAR2ContactName, TAR2Flag1) VALUES ('C003', 'E002', 'คุณอนันต์ ศรีวงศ์', 1);
INSERT INTO QD8TAR2 (TAR2TARNCode, TAR2SaleCode, TAR2ContactName, TAR2Flag1) VALUES ('C004', 'E001', 'คุณรุ่งเรือง ทองดี', 1);
INSERT INTO QD8TAR2 (TAR2TARNCode, TAR2SaleCode, TAR2ContactName, TAR2Flag1) VALUES ('C005', 'E003', 'คุณปกรณ์ เย็นใจ', 1);
INSERT INTO QD8TAR2 (TAR2TARNCode, TAR2SaleCode, TAR2ContactName, TAR2Flag1) VALUES ('C009', 'E001', NULL, 0);

-- Suppliers, one no longer in use.
INSERT INTO QD8TAP (TAPNCode, TAPNName, TAPNName2, TAPNTaxID, TAPNTelephone, TAPNCreditDay, TAPNFlag1) VALUES ('V001', 'บริษัท ไทยอีเลคทริค ซัพพลาย จำกัด', 'Thai Electric Supply Co., Ltd.', '0105548000101', '02-311-7788', 30, 1);
INSERT INTO QD8TAP (TAPNCode, TAPNName, TAPNName2, TAPNTaxID, TAPNTelephone, TAPNCreditDay, TAPNFlag1) VALUES ('V002', 'บริษัท ปูนซีเมนต์ภาคเหนือ จำกัด', 'Northern Cement Co., Ltd.', '0505550000202', '053-240-600', 60, 1);
INSERT INTO QD8TAP (TAPNCode, TAPNName, TAPNName2, TAPNTaxID, TAPNTelephone, TAPNCreditDay, TAPNFlag1) VALUES ('V003', 'บริษัท เครื่องเขียนสากล จำกัด', 'Universal Stationery Co., Ltd.', '0105553000303', '02-718-2244', 15, 1);
INSERT INTO QD8TAP (TAPNCode, TAPNName, TAPNName2, TAPNTaxID, TAPNTelephone, TAPNCreditDay, TAPNFlag1) VALUES ('V004', 'ห้างหุ้นส่วนจำกัด แม่ริมขนส่ง', 'Mae Rim Transport Ltd. Part.', '0503557000404', '053-297-110', 0, 1);
INSERT INTO QD8TAP (TAPNCode, TAPNName, TAPNName2, TAPNTaxID, TAPNTelephone, TAPNCreditDay, TAPNFlag1) VALUES ('V009', 'ผู้จำหน่ายเดิม (เลิกติดต่อ)', 'Former Supplier', NULL, NULL, 0, 0);

-- Products with their standard cost (seen only with the right ICINVENTORYCOST); the
-- cement is not grouped yet, one rice cooker is discontinued.
INSERT INTO QD8TProduct (TPdtCode, TPdtName, TPdtName2, TPdtTPDLCode, TPdtTPSECode, TPdtTPG1Code, TPdtTUntCode, TPdtCost, TPdtFlag1) VALUES ('P1001', 'หม้อหุงข้าว 1.8 ลิตร', 'Rice Cooker 1.8 L', 'L1', 'E10', 'G101', 'PCS', 650, 1);
INSERT INTO QD8TProduct (TPdtCode, TPdtName, TPdtName2, TPdtTPDLCode, TPdtTPSECode, TPdtTPG1Code, TPdtTUntCode, TPdtCost, TPdtFlag1) VALUES ('P1002', 'หม้อหุงข้าวดิจิทัล 1.0 ลิตร', 'Digital Rice Cooker 1.0 L', 'L1', 'E10', 'G101', 'PCS', 1250, 1);
INSERT INTO QD8TProduct (TPdtCode, TPdtName, TPdtName2, TPdtTPDLCode, TPdtTPSECode, TPdtTPG1Code, TPdtTUntCode, TPdtCost, TPdtFlag1) VALUES ('P1101', 'ไมโครเวฟ 20 ลิตร', 'Microwave Oven 20 L', 'L1', 'E10', 'G102', 'PCS', 2100, 1);
INSERT INTO QD8TProduct (TPdtCode, TPdtName, TPdtName2, TPdtTPDLCode, TPdtTPSECode, TPdtTPG1Code, TPdtTUntCode, TPdtCost, TPdtFlag1) VALUES ('P2001', 'แอร์ติดผนัง 12000 บีทียู', 'Wall Air Conditioner 12000 BTU', 'L1', 'E20', 'G201', 'PCS', 9800, 1);
INSERT INTO QD8TProduct (TPdtCode, TPdtName, TPdtName2, TPdtTPDLCode, TPdtTPSECode, TPdtTPG1Code, TPdtTUntCode, TPdtCost, TPdtFlag1) VALUES ('P2002', 'แอร์ติดผนัง 18000 บีทียู', 'Wall Air Conditioner 18000 BTU', 'L1', 'E20', 'G201', 'PCS', 14500, 1);
INSERT INTO QD8TProduct (TPdtCode, TPdtName, TPdtName2, TPdtTPDLCode, TPdtTPSECode, TPdtTPG1Code, TPdtTUntCode, TPdtCost, TPdtFlag1) VALUES ('B1001', 'ปูนซีเมนต์ปอร์ตแลนด์ 50 กก.', 'Portland Cement 50 kg', 'L2', 'B10', NULL, 'PCS', 135, 1);
INSERT INTO QD8TProduct (TPdtCode, TPdtName, TPdtName2, TPdtTPDLCode, TPdtTPSECode, TPdtTPG1Code, TPdtTUntCode, TPdtCost, TPdtFlag1) VALUES ('P1999', 'หม้อหุงข้าวรุ่นเก่า (เลิกจำหน่าย)', 'Rice Cooker, old model', 'L1', 'E10', 'G101', 'PCS', 0, 0);

-- Documents of the lists, dated relative to the day the company is created, so that
-- the lists always show drafts, documents waiting for approval (with the approve notes
-- '', 'A', 'B', Null and Somchai's "ฝ่ายบัญชี"), approved, billed and cancelled ones,
-- documents due within the alert days of the options and overdue ones.
-- Purchase requests.
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000001', CURRENT_DATE - 400, CURRENT_DATE - 390, NULL, 'HQ', 'D01', 'P11', 'E001', 'REQ-001', 'กระดาษถ่ายเอกสาร A4 สำหรับฝ่ายบัญชี', 'SOMCHAI', CURRENT_DATE - 400, 1, 1, '', 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000002', CURRENT_DATE - 200, CURRENT_DATE - 190, 'PJ01', 'CNX', 'D03', 'P31', 'E002', 'REQ-002', 'วัสดุก่อสร้างสาขาเชียงใหม่', 'JOHN', CURRENT_DATE - 200, 1, 1, '', 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000003', CURRENT_DATE - 150, CURRENT_DATE - 140, 'PJ02', 'HQ', 'D01', 'P12', 'E001', 'REQ-003', 'ที่ปรึกษาระบบบัญชีใหม่', 'SOMCHAI', CURRENT_DATE - 150, 1, 1, '', 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000004', CURRENT_DATE - 95, CURRENT_DATE - 80, 'PJ01', 'CNX', 'D03', 'P31', 'E003', 'REQ-004', 'ปูนซีเมนต์ 200 ถุง', 'JOHN', CURRENT_DATE - 95, 1, 1, '', 1, 'ผู้จำหน่ายเลิกผลิตรุ่นนี้');
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000005', CURRENT_DATE - 60, CURRENT_DATE - 45, NULL, 'HQ', 'D02', 'P21', 'E001', 'REQ-005', 'Sample products for the trade fair', 'SOMCHAI', CURRENT_DATE - 60, 1, 1, '', 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000006', CURRENT_DATE - 35, CURRENT_DATE - 20, NULL, 'HQ', 'D01', 'P12', 'E001', 'REQ-006', 'ตลับหมึกเครื่องพิมพ์', 'SOMCHAI', CURRENT_DATE - 35, 1, 0, NULL, 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000007', CURRENT_DATE - 30, CURRENT_DATE - 15, NULL, 'HQ', 'D01', 'P11', 'E001', 'REQ-007', 'Printer paper for the year end', 'SOMCHAI', CURRENT_DATE - 30, 1, 0, 'B', 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000008', CURRENT_DATE - 20, CURRENT_DATE - 10, 'PJ02', 'HQ', 'D01', 'P11', 'E001', 'REQ-008', 'เครื่องคอมพิวเตอร์สำหรับระบบบัญชีใหม่', 'SOMCHAI', CURRENT_DATE - 20, 1, 0, 'ฝ่ายบัญชี', 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000009', CURRENT_DATE - 12, CURRENT_DATE + 2, 'PJ02', 'HQ', 'D01', 'P11', 'E001', 'REQ-009', 'Accounting server licence', 'SOMCHAI', CURRENT_DATE - 12, 1, 0, 'A', 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000010', CURRENT_DATE - 10, CURRENT_DATE + 5, 'PJ01', 'CNX', 'D02', 'P21', 'E003', 'REQ-010', 'แคตตาล็อกสินค้าสำหรับลูกค้า', 'JOHN', CURRENT_DATE - 10, 1, 0, 'B', 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000011', CURRENT_DATE - 8, CURRENT_DATE + 10, 'PJ01', 'CNX', 'D03', 'P31', 'E002', 'REQ-011', 'Pallets for the branch warehouse', 'JOHN', CURRENT_DATE - 8, 1, 0, '', 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000012', CURRENT_DATE - 7, CURRENT_DATE + 3, NULL, 'HQ', 'D03', 'P31', 'E004', 'REQ-012', 'ถุงมือและหน้ากากสำหรับคลังสินค้า', 'SOMCHAI', CURRENT_DATE - 7, 1, 0, '', 1, 'ซ้ำกับใบขอซื้อเดิม');
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000013', CURRENT_DATE - 5, CURRENT_DATE, NULL, 'HQ', 'D02', 'P21', 'E001', 'REQ-013', 'ของที่ระลึกสำหรับลูกค้า', 'SOMCHAI', CURRENT_DATE - 5, 1, 1, '', 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000014', CURRENT_DATE - 4, CURRENT_DATE + 1, 'PJ01', 'CNX', 'D03', 'P31', 'E002', 'REQ-014', 'ชั้นวางสินค้า 10 ชุด', 'JOHN', CURRENT_DATE - 4, 1, 1, '', 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000015', CURRENT_DATE - 3, CURRENT_DATE + 14, NULL, 'HQ', 'D01', 'P12', 'E001', 'REQ-015', 'Bank transfer forms', 'SOMCHAI', CURRENT_DATE - 3, 0, 0, NULL, 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000016', CURRENT_DATE - 2, CURRENT_DATE + 20, 'PJ01', 'CNX', 'D02', 'P21', 'E003', 'REQ-016', 'ป้ายโฆษณาหน้าร้านสาขา', 'JOHN', CURRENT_DATE - 2, 0, 0, '', 0, NULL);
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000017', CURRENT_DATE - 1, CURRENT_DATE + 7, NULL, 'HQ', 'D01', 'P11', 'E001', 'REQ-017', 'แฟ้มเอกสารและซองจดหมาย', 'SOMCHAI', CURRENT_DATE - 1, 0, 0, '', 1, 'ใช้ของในสต็อกแทน');
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus, TPRDCancelNote) VALUES ('PR0000018', CURRENT_DATE, CURRENT_DATE + 30, 'PJ01', 'CNX', 'D03', 'P31', 'E002', 'REQ-018', 'รถเข็นสินค้า 2 คัน', 'JOHN', CURRENT_DATE, 0, 0, NULL, 0, NULL);
-- Purchase orders and the suppliers' acknowledgements: orders due within the alert
-- days with and without an acknowledgement, one overdue that no supplier answered.
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000001', CURRENT_DATE - 380, CURRENT_DATE - 360, 'V003', 'HQ', NULL, 'PR0000001', 'กระดาษถ่ายเอกสาร A4 100 รีม', 12500, 1, 'SOMCHAI', CURRENT_DATE - 380, 1, 1, '', 0);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000002', CURRENT_DATE - 190, CURRENT_DATE - 170, 'V002', 'CNX', 'PJ01', 'PR0000002', 'วัสดุก่อสร้างสาขาเชียงใหม่', 85600, 1, 'JOHN', CURRENT_DATE - 190, 1, 1, '', 0);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000003', CURRENT_DATE - 90, CURRENT_DATE - 75, 'V002', 'CNX', 'PJ01', 'PR0000004', 'ปูนซีเมนต์ 200 ถุง', 27000, 0, 'JOHN', CURRENT_DATE - 90, 1, 1, '', 1);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000004', CURRENT_DATE - 55, CURRENT_DATE - 40, 'V001', 'HQ', NULL, 'PR0000005', 'Sample products for the trade fair', 45200, 1, 'SOMCHAI', CURRENT_DATE - 55, 1, 1, '', 0);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000005', CURRENT_DATE - 25, CURRENT_DATE + 2, 'V001', 'HQ', 'PJ02', 'PR0000008', 'คอมพิวเตอร์ 5 เครื่อง', 125000, 0, 'SOMCHAI', CURRENT_DATE - 25, 1, 1, '', 0);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000006', CURRENT_DATE - 20, CURRENT_DATE + 4, 'V003', 'HQ', NULL, 'PR0000006', 'หมึกพิมพ์และกระดาษ', 8900, 0, 'SOMCHAI', CURRENT_DATE - 20, 1, 1, '', 0);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000007', CURRENT_DATE - 15, CURRENT_DATE - 3, 'V004', 'CNX', 'PJ01', NULL, 'ค่าขนส่งสินค้าไปสาขาเชียงใหม่', 6500, 0, 'JOHN', CURRENT_DATE - 15, 1, 1, '', 0);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000008', CURRENT_DATE - 10, CURRENT_DATE + 6, 'V001', 'HQ', NULL, NULL, 'Air conditioner spare parts', 15400, 0, 'SOMCHAI', CURRENT_DATE - 10, 1, 0, '', 0);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000009', CURRENT_DATE - 9, CURRENT_DATE + 12, 'V002', 'CNX', 'PJ01', NULL, 'ปูนซีเมนต์และทราย', 32000, 0, 'JOHN', CURRENT_DATE - 9, 1, 0, 'A', 0);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000010', CURRENT_DATE - 8, CURRENT_DATE + 15, 'V003', 'HQ', NULL, NULL, 'Stationery for the first quarter', 4300, 0, 'SOMCHAI', CURRENT_DATE - 8, 1, 0, NULL, 0);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000011', CURRENT_DATE - 6, CURRENT_DATE + 9, 'V004', 'CNX', 'PJ01', 'PR0000014', 'ขนส่งชั้นวางสินค้า', 3200, 0, 'JOHN', CURRENT_DATE - 6, 1, 0, 'B', 0);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000012', CURRENT_DATE - 5, CURRENT_DATE + 20, 'V001', 'HQ', NULL, NULL, 'ไมโครเวฟสำหรับจัดแสดง', 21000, 0, 'SOMCHAI', CURRENT_DATE - 5, 1, 0, '', 1);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000013', CURRENT_DATE - 3, CURRENT_DATE + 25, 'V003', 'HQ', NULL, NULL, 'Envelopes and folders', 1800, 0, 'SOMCHAI', CURRENT_DATE - 3, 0, 0, NULL, 0);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000014', CURRENT_DATE - 2, CURRENT_DATE + 30, 'V002', 'CNX', 'PJ01', NULL, 'เหล็กเส้นสำหรับสาขาใหม่', 54000, 0, 'JOHN', CURRENT_DATE - 2, 0, 0, '', 0);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000015', CURRENT_DATE - 1, CURRENT_DATE + 10, 'V001', 'HQ', NULL, NULL, 'สายไฟและปลั๊กไฟ', 7600, 0, 'SOMCHAI', CURRENT_DATE - 1, 0, 0, '', 1);
INSERT INTO QD8TPO (TPODNo, TPODDate, TPODDueDate, TPODTAPNCode, TPODTBraCode, TPODTPrjCode, TPODRefNo, TPODDescription, TPODTotalAmount, TPODBillStatus, TPODCreateBy, TPODCreateDate, TPODConfirmStatus, TPODApproveStatus, TPODApproveNote, TPODCancelStatus) VALUES ('PO0000016', CURRENT_DATE, CURRENT_DATE + 1, 'V004', 'CNX', 'PJ01', NULL, 'ค่าขนส่งด่วน', 1500, 0, 'JOHN', CURRENT_DATE, 1, 1, '', 0);
INSERT INTO QD8TPO2 (TPO2TPODNo, TPO2Acknowledge, TPO2AckDate, TPO2AckBy) VALUES ('PO0000001', 1, CURRENT_DATE - 379, 'คุณมานพ ใจซื่อ');
INSERT INTO QD8TPO2 (TPO2TPODNo, TPO2Acknowledge, TPO2AckDate, TPO2AckBy) VALUES ('PO0000002', 1, CURRENT_DATE - 188, 'คุณศรีสุดา คำแก้ว');
INSERT INTO QD8TPO2 (TPO2TPODNo, TPO2Acknowledge, TPO2AckDate, TPO2AckBy) VALUES ('PO0000004', 1, CURRENT_DATE - 54, 'คุณธีระ วงศ์ใหญ่');
INSERT INTO QD8TPO2 (TPO2TPODNo, TPO2Acknowledge, TPO2AckDate, TPO2AckBy) VALUES ('PO0000005', 0, NULL, NULL);
INSERT INTO QD8TPO2 (TPO2TPODNo, TPO2Acknowledge, TPO2AckDate, TPO2AckBy) VALUES ('PO0000006', 1, CURRENT_DATE - 19, 'คุณมานพ ใจซื่อ');
INSERT INTO QD8TPO2 (TPO2TPODNo, TPO2Acknowledge, TPO2AckDate, TPO2AckBy) VALUES ('PO0000016', 0, NULL, NULL);
-- Sales orders: billed and not yet billed, due for delivery within the alert days,
-- one whose billing falls due before its delivery alert.
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000001', 0, CURRENT_DATE - 420, CURRENT_DATE - 405, 'C002', 'CUS-001', 'HQ', NULL, 'E001', 'หม้อหุงข้าว 50 ใบ', 32500, 1, 'SOMCHAI', CURRENT_DATE - 420, 1, 1, '', 0);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000002', 0, CURRENT_DATE - 180, CURRENT_DATE - 165, 'C001', 'CUS-002', 'CNX', 'PJ01', 'E003', 'ปูนซีเมนต์ 300 ถุง', 40500, 1, 'JOHN', CURRENT_DATE - 180, 1, 1, '', 0);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000003', 0, CURRENT_DATE - 100, CURRENT_DATE - 85, 'C003', 'CUS-003', 'CNX', 'PJ01', 'E002', 'Cement for the Lamphun site', 67500, 0, 'JOHN', CURRENT_DATE - 100, 1, 1, '', 1);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000004', 0, CURRENT_DATE - 40, CURRENT_DATE - 25, 'C004', 'CUS-004', 'HQ', NULL, 'E001', 'แอร์ติดผนัง 4 เครื่อง', 52000, 0, 'SOMCHAI', CURRENT_DATE - 40, 1, 1, '', 0);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000005', 0, CURRENT_DATE - 20, CURRENT_DATE + 3, 'C005', 'CUS-005', 'HQ', NULL, 'E003', 'แอร์ติดผนัง 18000 บีทียู 6 เครื่อง', 102000, 0, 'SOMCHAI', CURRENT_DATE - 20, 1, 1, '', 0);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000006', 0, CURRENT_DATE - 15, CURRENT_DATE + 6, 'C002', 'CUS-006', 'HQ', NULL, 'E001', 'Rice cookers for the New Year promotion', 45000, 0, 'SOMCHAI', CURRENT_DATE - 15, 1, 1, '', 0);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000007', 0, CURRENT_DATE - 12, CURRENT_DATE + 2, 'C001', 'CUS-007', 'CNX', 'PJ01', 'E003', 'ไมโครเวฟ 10 เครื่อง', 29000, 1, 'JOHN', CURRENT_DATE - 12, 1, 1, '', 0);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000008', 0, CURRENT_DATE - 10, CURRENT_DATE + 10, 'C003', 'CUS-008', 'CNX', 'PJ01', 'E002', 'หม้อหุงข้าวดิจิทัล 20 ใบ', 31000, 0, 'JOHN', CURRENT_DATE - 10, 1, 0, '', 0);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000009', 0, CURRENT_DATE - 8, CURRENT_DATE + 12, 'C004', 'CUS-009', 'HQ', NULL, 'E001', 'Microwaves for the showroom', 14500, 0, 'SOMCHAI', CURRENT_DATE - 8, 1, 0, 'A', 0);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000010', 0, CURRENT_DATE - 7, CURRENT_DATE + 14, 'C005', 'CUS-010', 'HQ', NULL, 'E003', 'ติดตั้งแอร์อาคารสำนักงาน', 88000, 0, 'SOMCHAI', CURRENT_DATE - 7, 1, 0, NULL, 0);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000011', 0, CURRENT_DATE - 6, CURRENT_DATE + 4, 'C002', 'CUS-011', 'HQ', NULL, 'E001', 'หม้อหุงข้าว 30 ใบ', 19500, 0, 'SOMCHAI', CURRENT_DATE - 6, 1, 0, 'B', 0);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000012', 0, CURRENT_DATE - 5, CURRENT_DATE + 20, 'C001', 'CUS-012', 'CNX', 'PJ01', 'E003', 'ปูนซีเมนต์ 100 ถุง', 13500, 0, 'JOHN', CURRENT_DATE - 5, 1, 0, '', 1);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000013', 0, CURRENT_DATE - 3, CURRENT_DATE + 21, 'C003', 'CUS-013', 'CNX', 'PJ01', 'E002', 'Air conditioners for the site office', 58000, 0, 'JOHN', CURRENT_DATE - 3, 0, 0, NULL, 0);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000014', 0, CURRENT_DATE - 2, CURRENT_DATE + 25, 'C004', 'CUS-014', 'HQ', NULL, 'E001', 'ไมโครเวฟ 5 เครื่อง', 14500, 0, 'SOMCHAI', CURRENT_DATE - 2, 0, 0, '', 0);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000015', 0, CURRENT_DATE - 1, CURRENT_DATE + 7, 'C005', 'CUS-015', 'HQ', NULL, 'E003', 'อะไหล่แอร์', 6200, 0, 'SOMCHAI', CURRENT_DATE - 1, 0, 0, '', 1);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000016', 0, CURRENT_DATE, CURRENT_DATE + 1, 'C002', 'CUS-016', 'HQ', NULL, 'E001', 'หม้อหุงข้าวส่งด่วน', 6500, 0, 'SOMCHAI', CURRENT_DATE, 1, 1, '', 0);
-- Invoices: paid, outstanding and overdue, falling due within the billing alert
-- without a billing note, billed.
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000001', CURRENT_DATE - 400, CURRENT_DATE - 370, 'C002', 'HQ', 'SO0000001', 'หม้อหุงข้าว 50 ใบ', 32500, 0, 1, 'SOMCHAI', CURRENT_DATE - 400, 1, 1, '', 0);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000002', CURRENT_DATE - 170, CURRENT_DATE - 140, 'C001', 'CNX', 'SO0000002', 'ปูนซีเมนต์ 300 ถุง', 40500, 0, 1, 'JOHN', CURRENT_DATE - 170, 1, 1, '', 0);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000003', CURRENT_DATE - 60, CURRENT_DATE - 30, 'C004', 'HQ', 'SO0000004', 'แอร์ติดผนัง 4 เครื่อง', 52000, 52000, 1, 'SOMCHAI', CURRENT_DATE - 60, 1, 1, '', 0);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000004', CURRENT_DATE - 45, CURRENT_DATE - 15, 'C005', 'HQ', NULL, 'Air conditioner service, third quarter', 48000, 12000, 1, 'SOMCHAI', CURRENT_DATE - 45, 1, 1, '', 0);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000005', CURRENT_DATE - 28, CURRENT_DATE + 2, 'C002', 'HQ', NULL, 'หม้อหุงข้าวดิจิทัล 10 ใบ', 15500, 15500, 0, 'SOMCHAI', CURRENT_DATE - 28, 1, 1, '', 0);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000006', CURRENT_DATE - 25, CURRENT_DATE + 5, 'C001', 'CNX', 'SO0000007', 'ไมโครเวฟ 10 เครื่อง', 29000, 29000, 0, 'JOHN', CURRENT_DATE - 25, 1, 1, '', 0);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000007', CURRENT_DATE - 20, CURRENT_DATE + 10, 'C003', 'CNX', NULL, 'Rice cookers for the canteen', 13000, 13000, 1, 'JOHN', CURRENT_DATE - 20, 1, 1, '', 0);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000008', CURRENT_DATE - 10, CURRENT_DATE + 20, 'C004', 'HQ', NULL, 'ค่าติดตั้งแอร์', 4500, 4500, 0, 'SOMCHAI', CURRENT_DATE - 10, 1, 0, '', 0);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000009', CURRENT_DATE - 9, CURRENT_DATE + 21, 'C005', 'HQ', NULL, 'Air conditioners, second floor', 58000, 58000, 0, 'SOMCHAI', CURRENT_DATE - 9, 1, 0, 'A', 0);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000010', CURRENT_DATE - 8, CURRENT_DATE + 22, 'C002', 'HQ', NULL, 'หม้อหุงข้าว 30 ใบ', 19500, 19500, 0, 'SOMCHAI', CURRENT_DATE - 8, 1, 0, NULL, 0);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000011', CURRENT_DATE - 7, CURRENT_DATE + 23, 'C001', 'CNX', NULL, 'ปูนซีเมนต์ 50 ถุง', 6750, 6750, 0, 'JOHN', CURRENT_DATE - 7, 1, 0, 'ฝ่ายบัญชี', 0);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000012', CURRENT_DATE - 6, CURRENT_DATE + 24, 'C003', 'CNX', NULL, 'ค่าขนส่งปูนซีเมนต์', 2500, 0, 0, 'JOHN', CURRENT_DATE - 6, 1, 0, '', 1);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000013', CURRENT_DATE - 4, CURRENT_DATE + 26, 'C004', 'HQ', NULL, 'Microwaves, invoice issued twice', 14500, 0, 0, 'SOMCHAI', CURRENT_DATE - 4, 1, 1, '', 1);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000014', CURRENT_DATE - 2, CURRENT_DATE + 28, 'C005', 'HQ', NULL, 'อะไหล่แอร์', 6200, 6200, 0, 'SOMCHAI', CURRENT_DATE - 2, 0, 0, NULL, 0);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000015', CURRENT_DATE - 1, CURRENT_DATE + 29, 'C002', 'HQ', NULL, 'หม้อหุงข้าวเสียระหว่างขนส่ง', 1300, 1300, 0, 'SOMCHAI', CURRENT_DATE - 1, 0, 0, '', 1);
INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoDueDate, TIvoTARNCode, TIvoTBraCode, TIvoRefNo, TIvoDescription, TIvoAmount, TIvoArrears, TIvoBillStatus, TIvoCreateBy, TIvoCreateDate, TIvoConfirmStatus, TIvoApproveStatus, TIvoApproveNote, TIvoCancelStatus) VALUES ('IV0000016', CURRENT_DATE, CURRENT_DATE + 30, 'C001', 'CNX', NULL, 'ไมโครเวฟ 2 เครื่อง', 5800, 5800, 0, 'JOHN', CURRENT_DATE, 0, 0, '', 0);
-- Stock issues to employees of every type (John sees only those of office staff and
-- sales people) and two transfers, which the stock-issue list leaves out.
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000001', CURRENT_DATE - 420, CURRENT_DATE - 417, 'ICISSUEUSE', 'HQ', NULL, NULL, 'E001', 'เบิกกระดาษใช้ในสำนักงาน', 'SOMCHAI', CURRENT_DATE - 420, 1, 1, '', 0);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000002', CURRENT_DATE - 120, CURRENT_DATE - 117, 'ICISSUEUSE', 'CNX', NULL, 'PJ01', 'E002', 'Shelving materials for the branch', 'JOHN', CURRENT_DATE - 120, 1, 1, '', 0);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000003', CURRENT_DATE - 70, CURRENT_DATE - 67, 'ICISSUEUSE', 'CNX', NULL, 'PJ01', 'E003', 'เบิกสินค้าตัวอย่างให้ลูกค้า', 'JOHN', CURRENT_DATE - 70, 1, 1, '', 1);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000004', CURRENT_DATE - 40, CURRENT_DATE - 37, 'ICISSUEUSE', 'HQ', NULL, NULL, 'E004', 'เบิกถุงมือสำหรับพนักงานคลัง', 'SOMCHAI', CURRENT_DATE - 40, 1, 1, '', 0);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000005', CURRENT_DATE - 20, CURRENT_DATE - 17, 'ICISSUEUSE', 'CNX', NULL, 'PJ01', 'E002', 'Cement samples for the site', 'JOHN', CURRENT_DATE - 20, 1, 0, '', 0);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000006', CURRENT_DATE - 15, CURRENT_DATE - 12, 'ICISSUEUSE', 'HQ', NULL, 'PJ02', 'E001', 'เบิกคอมพิวเตอร์สำหรับทดสอบระบบ', 'SOMCHAI', CURRENT_DATE - 15, 1, 0, 'A', 0);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000007', CURRENT_DATE - 12, CURRENT_DATE - 9, 'ICISSUEUSE', 'CNX', NULL, NULL, 'E003', 'เบิกไมโครเวฟจัดแสดง', 'JOHN', CURRENT_DATE - 12, 1, 0, NULL, 0);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000008', CURRENT_DATE - 10, CURRENT_DATE - 7, 'ICISSUEUSE', 'HQ', NULL, NULL, 'E004', 'Cleaning supplies for the warehouse', 'SOMCHAI', CURRENT_DATE - 10, 1, 0, 'B', 0);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000009', CURRENT_DATE - 8, CURRENT_DATE - 5, 'ICISSUEUSE', 'CNX', NULL, 'PJ01', 'E002', 'เบิกชั้นวางสินค้า', 'JOHN', CURRENT_DATE - 8, 1, 0, '', 1);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000010', CURRENT_DATE - 6, CURRENT_DATE - 3, 'ICISSUEUSE', 'HQ', NULL, 'PJ02', 'E001', 'เบิกกระดาษพิมพ์รายงาน', 'SOMCHAI', CURRENT_DATE - 6, 1, 1, '', 0);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000011', CURRENT_DATE - 4, CURRENT_DATE - 1, 'ICISSUEUSE', 'CNX', NULL, NULL, 'E003', 'Rice cooker for a customer demo', 'JOHN', CURRENT_DATE - 4, 0, 0, NULL, 0);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000012', CURRENT_DATE - 3, CURRENT_DATE, 'ICISSUEUSE', 'HQ', NULL, NULL, 'E004', 'เบิกเทปและกล่องบรรจุ', 'SOMCHAI', CURRENT_DATE - 3, 0, 0, '', 0);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000013', CURRENT_DATE - 2, CURRENT_DATE + 1, 'ICISSUEUSE', 'CNX', NULL, 'PJ01', 'E002', 'เบิกปูนซีเมนต์ซ่อมหน้าร้าน', 'JOHN', CURRENT_DATE - 2, 0, 0, '', 1);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('IS0000014', CURRENT_DATE - 1, CURRENT_DATE + 2, 'ICISSUEUSE', 'HQ', NULL, NULL, 'E001', 'Demo units for the showroom', 'SOMCHAI', CURRENT_DATE - 1, 0, 0, NULL, 0);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('TR0000001', CURRENT_DATE - 30, CURRENT_DATE - 27, 'ICTRANSFER', 'HQ', NULL, 'PJ01', NULL, 'โอนแอร์ไปสาขาเชียงใหม่', 'SOMCHAI', CURRENT_DATE - 30, 1, 1, '', 0);
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvCreateBy, TInvCreateDate, TInvConfirmStatus, TInvApproveStatus, TInvApproveNote, TInvCancelStatus) VALUES ('TR0000002', CURRENT_DATE - 5, CURRENT_DATE - 2, 'ICTRANSFER', 'CNX', NULL, NULL, NULL, 'Return of display units to head office', 'JOHN', CURRENT_DATE - 5, 0, 0, NULL, 0);

-- The alert days of the lists, stored for the company (the definitions' defaults are
-- shorter), and John's own project, which his document lists start filtered by.
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('COMPANY', '', 'BillProcessAlertTime', '7', 7, 'ADMIN', '2026-01-02 09:00:00');
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('COMPANY', '', 'POIncomingAlertDay', '7', 7, 'ADMIN', '2026-01-02 09:00:00');
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('COMPANY', '', 'SOIncomingAlertDay', '5', 5, 'ADMIN', '2026-01-02 09:00:00');
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('COMPANY', '', 'PORequireAckBeforeDelivery', '1', 1, 'ADMIN', '2026-01-02 09:00:00');
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (2, 'DefaultUserProject', 'PJ01');

-- ---------------------------------------------------------------------------
-- Option values of each scope, the option and custom-code commands' rights and
-- the custom code lists.
-- ---------------------------------------------------------------------------
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('COMPANY', '', 'GLCloseDate', '2026-10-31', 46326, 'ADMIN', '2026-11-01 09:00:00');
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('COMPANY', '', 'ARInterestRate', '1.50', 1.5, 'ADMIN', '2026-11-01 09:00:00');
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('BRANCH', 'CNX', 'SOBranchPriceList', 'NORTH', 0, 'ADMIN', '2026-11-01 09:00:00');
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('BRANCH', 'CNX', 'SOBranchOpenTime', '09:00', 0.375, 'ADMIN', '2026-11-01 09:00:00');
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('HOST', 'POS-HQ-01', 'ReceiptPrinter', 'EPSON TM-T82', 0, 'ADMIN', '2026-11-01 09:00:00');
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('USER', '2', 'GLZeroOption', '2', 2, 'ADMIN', '2026-11-01 09:00:00');
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('USER', '1', 'UserStartTime', '07:30', 0.3125, 'ADMIN', '2026-11-01 09:00:00');
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'AROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'APOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'APBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'APHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'APUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PUOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PUBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PUHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PUUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HRBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HRHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'HRUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'CENTERCUSTOM', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'SOCUSTOM', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'GLUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'AROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ARBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ARHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ARUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'APOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'APBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'APHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'APUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PUOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PUBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PUHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'PUUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HRBRANCHOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HRHOSTOPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'HRUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'CENTERCUSTOM', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'SOCUSTOM', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'GLUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ARUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ICUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'APUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'PUUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SOUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'HRUSEROPTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TCustom1 (TCS1Type, TCS1Code, TCS1Name, TCS1Name2, TCS1Flag1, TCS1Flag3) VALUES ('REMARK', '001', 'ขอบคุณที่ใช้บริการ', 'Thank you for your business', 1, '2026-01-02 09:00:00');
INSERT INTO QD8TCustom1 (TCS1Type, TCS1Code, TCS1Name, TCS1Name2, TCS1Flag1, TCS1Flag3) VALUES ('REMARK', '002', 'สินค้าซื้อแล้วไม่รับเปลี่ยนหรือคืน', 'Goods sold are not returnable', 1, '2026-01-02 09:00:00');
INSERT INTO QD8TCustom1 (TCS1Type, TCS1Code, TCS1Name, TCS1Name2, TCS1Flag1, TCS1Flag3) VALUES ('REMARK', '003', 'ราคานี้รวมภาษีมูลค่าเพิ่มแล้ว', 'Prices include VAT', 1, '2026-01-02 09:00:00');
INSERT INTO QD8TCustom1 (TCS1Type, TCS1Code, TCS1Name, TCS1Name2, TCS1Flag1, TCS1Flag3) VALUES ('CANCELREASON', '001', 'ลูกค้ายกเลิกคำสั่งซื้อ', 'Cancelled by the customer', 1, '2026-01-02 09:00:00');
INSERT INTO QD8TCustom1 (TCS1Type, TCS1Code, TCS1Name, TCS1Name2, TCS1Flag1, TCS1Flag3) VALUES ('CANCELREASON', '002', 'บันทึกผิดพลาด', 'Entered in error', 1, '2026-01-02 09:00:00');
INSERT INTO QD8TCustom1 (TCS1Type, TCS1Code, TCS1Name, TCS1Name2, TCS1Flag1, TCS1Flag3) VALUES ('CANCELREASON', '003', 'สินค้าหมด', 'Out of stock', 1, '2026-01-02 09:00:00');
INSERT INTO QD8TCustom1 (TCS1Type, TCS1Code, TCS1Name, TCS1Name2, TCS1Flag1, TCS1Flag3) VALUES ('CANCELREASON', '009', 'อื่น ๆ (เลิกใช้)', 'Other (retired)', 0, '2026-01-02 09:00:00');
INSERT INTO QD8TCustom1 (TCS1Type, TCS1Code, TCS1Name, TCS1Name2, TCS1Flag1, TCS1Flag3) VALUES ('SHIPTERM', '001', 'ส่งถึงที่ลูกค้า', 'Delivered to the customer', 1, '2026-01-02 09:00:00');
INSERT INTO QD8TCustom1 (TCS1Type, TCS1Code, TCS1Name, TCS1Name2, TCS1Flag1, TCS1Flag3) VALUES ('SHIPTERM', '002', 'ลูกค้ารับเอง', 'Collected by the customer', 1, '2026-01-02 09:00:00');
INSERT INTO QD8TCustom1 (TCS1Type, TCS1Code, TCS1Name, TCS1Name2, TCS1Flag1, TCS1Flag3) VALUES ('SHIPTERM', '003', 'ส่งทางขนส่งเอกชน ลูกค้าชำระค่าขนส่ง', 'Carrier, freight collect', 1, '2026-01-02 09:00:00');
UPDATE QD8TSO SET TSODTCS1Code='001' WHERE TSODTCS1Code IS NULL;
