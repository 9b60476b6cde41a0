-- Sample company: company data database (QD8Data.dat), session part.
-- User 0 is the administrator and template user, user 1 works in Thai,
-- user 2 in English, user 3 works the production keypad on a touch screen.
-- The passwords of users 1, 2 and 3 are 1234.

INSERT INTO QD8TUser (TUsrID, TUsrLoginName, TUsrLoginPassword, TUsrName, TUsrName2, TUsrTEmpCode, TUsrProjectLevel, TUsrActiveStatus, TUsrCreateDate, TUsrFlag1) VALUES (0, 'ADMIN', '', 'ผู้ดูแลระบบ', 'Administrator', NULL, 9, 1, '2026-01-02 08:00:00', 1);
INSERT INTO QD8TUser (TUsrID, TUsrLoginName, TUsrLoginPassword, TUsrName, TUsrName2, TUsrTEmpCode, TUsrProjectLevel, TUsrActiveStatus, TUsrCreateDate, TUsrFlag1) VALUES (1, 'SOMCHAI', 'sha256:03ac674216f3e15c761ee1a5e255f067953623c8b388b4459e13f978d7c846f4', 'สมชาย ใจดี', 'Somchai Jaidee', 'E001', 1, 1, '2026-01-02 08:30:00', 1);
INSERT INTO QD8TUser (TUsrID, TUsrLoginName, TUsrLoginPassword, TUsrName, TUsrName2, TUsrTEmpCode, TUsrProjectLevel, TUsrActiveStatus, TUsrCreateDate, TUsrFlag1) VALUES (2, 'JOHN', 'sha256:03ac674216f3e15c761ee1a5e255f067953623c8b388b4459e13f978d7c846f4', 'จอห์น สมิธ', 'John Smith', 'E002', 1, 1, '2026-01-02 08:45:00', 1);
INSERT INTO QD8TUser (TUsrID, TUsrLoginName, TUsrLoginPassword, TUsrName, TUsrName2, TUsrTEmpCode, TUsrProjectLevel, TUsrActiveStatus, TUsrCreateDate, TUsrFlag1) VALUES (3, 'PRODUCTION', 'sha256:03ac674216f3e15c761ee1a5e255f067953623c8b388b4459e13f978d7c846f4', 'สมศักดิ์ ขยันดี', 'Somsak Khayandee', NULL, 1, 1, '2026-01-02 09:00:00', 1);

-- Language and ribbon theme per user.
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (0, 'LanguageID', '0');
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (1, 'LanguageID', '0');
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (2, 'LanguageID', '1');
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (3, 'LanguageID', '0');
-- The production user starts in the keypad menu, not in the main window.
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (3, 'StartMode', 'KEYPAD');
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
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARCREDITREPORT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICISSUEJOB', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'PUPRSTATUS', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLPROFIT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'GLBUDGET', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARRECEIPT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARCREDITNOTE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARBILLING', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ARSTATEMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICTRANSFER', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICWAREHOUSE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICMOVEMENT', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICJOB', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICJOBPRODUCTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
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
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICJOB', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICJOBPRODUCTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
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
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ICJOB', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ICJOBPRODUCTION', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
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

-- user 3: the production floor. Stock issues, transfers, requests, receipts and
-- the stock reports, nothing else; the product list only to look at (no Show right,
-- so the keypad leaves it out although it is on his list).
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (3, 'ICISSUEUSE', 1, 1, 1, 0, 0, 0, 1, 0, 0, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (3, 'ICTRANSFER', 1, 1, 1, 0, 0, 0, 1, 0, 0, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (3, 'PURPR', 1, 1, 1, 0, 0, 0, 1, 0, 0, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (3, 'PURECEIVE', 1, 1, 1, 0, 0, 0, 1, 0, 0, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (3, 'ICSTOCK', 1, 1, 1, 0, 0, 0, 1, 0, 0, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (3, 'ICMOVEMENT', 1, 1, 1, 0, 0, 0, 1, 0, 0, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (3, 'ICPRODUCT', 1, 0, 1, 0, 0, 0, 1, 0, 0, 1);

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

-- Company option values (the voucher numbers taken are set after the sample vouchers).
INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate) VALUES ('COMPANY', '', 'ARCREDITBALANCEIGNORECHEQUE', '0', 0, 'ADMIN', '2026-01-02 09:00:00');

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
-- The keypad menu of the production user is his own command list, in keypad order.
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (3, 302, 1);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (3, 305, 2);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (3, 303, 3);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (3, 502, 4);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (3, 304, 5);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (3, 307, 6);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (3, 301, 7);

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

-- Journal books: general, receipts, payments, sales and purchases (PUV), and the
-- old purchase book no longer in use.
INSERT INTO QD8TGLBook (TGLBCode, TGLBName, TGLBName2, TGLBSort, TGLBFlag1) VALUES ('JV', 'สมุดรายวันทั่วไป', 'General Journal', 1, 1);
INSERT INTO QD8TGLBook (TGLBCode, TGLBName, TGLBName2, TGLBSort, TGLBFlag1) VALUES ('RV', 'สมุดรายวันรับเงิน', 'Cash Receipts Journal', 2, 1);
INSERT INTO QD8TGLBook (TGLBCode, TGLBName, TGLBName2, TGLBSort, TGLBFlag1) VALUES ('PV', 'สมุดรายวันจ่ายเงิน', 'Cash Payments Journal', 3, 1);
INSERT INTO QD8TGLBook (TGLBCode, TGLBName, TGLBName2, TGLBSort, TGLBFlag1) VALUES ('SV', 'สมุดรายวันขาย', 'Sales Journal', 4, 1);
INSERT INTO QD8TGLBook (TGLBCode, TGLBName, TGLBName2, TGLBSort, TGLBFlag1) VALUES ('PU', 'สมุดรายวันซื้อ', 'Purchases Journal', 5, 0);
INSERT INTO QD8TGLBook (TGLBCode, TGLBName, TGLBName2, TGLBSort, TGLBFlag1) VALUES ('PUV', 'สมุดรายวันซื้อเชื่อ', 'Purchase Voucher Journal', 6, 1);

-- Chart of accounts: a Thai SME chart in five classes (1 assets ... 5 expenses)
-- plus suspense accounts. Headings are control accounts (TACCISControl 1) that
-- nothing posts to; the office rent and electricity are spread over branches
-- and departments by their allocation rows.
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1000-00', 'สินทรัพย์', 'Assets', 1, 1, 0, 1, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1100-00', 'สินทรัพย์หมุนเวียน', 'Current Assets', 2, 1, 0, 2, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1110-00', 'เงินสดและรายการเทียบเท่าเงินสด', 'Cash and Cash Equivalents', 3, 1, 0, 3, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1111-01', 'เงินสดในมือ', 'Cash on Hand', 4, 0, 0, 4, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1111-02', 'เงินสดย่อย', 'Petty Cash', 4, 0, 0, 5, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1112-01', 'เงินฝากกระแสรายวัน ธ.กรุงเทพ', 'Current Account - Bangkok Bank', 4, 0, 0, 6, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1112-02', 'เงินฝากออมทรัพย์ ธ.กสิกรไทย', 'Savings Account - Kasikornbank', 4, 0, 0, 7, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1112-03', 'เงินฝากออมทรัพย์ ธ.ไทยพาณิชย์', 'Savings Account - SCB', 4, 0, 0, 8, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1112-04', 'เงินฝากประจำ ธ.กรุงไทย', 'Fixed Deposit - Krungthai Bank', 4, 0, 0, 9, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1113-01', 'เช็ครับรอนำฝาก', 'Cheques on Hand', 4, 0, 0, 10, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1120-00', 'ลูกหนี้การค้าและลูกหนี้อื่น', 'Trade and Other Receivables', 3, 1, 0, 11, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1121-01', 'ลูกหนี้การค้า', 'Trade Receivables', 4, 0, 0, 12, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1121-02', 'ลูกหนี้การค้า - กิจการที่เกี่ยวข้อง', 'Trade Receivables - Related Parties', 4, 0, 0, 13, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1121-09', 'ค่าเผื่อหนี้สงสัยจะสูญ', 'Allowance for Doubtful Accounts', 4, 0, 0, 14, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1122-01', 'เช็ครับลงวันที่ล่วงหน้า', 'Post-dated Cheques Received', 4, 0, 0, 15, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1123-01', 'ลูกหนี้อื่น', 'Other Receivables', 4, 0, 0, 16, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1123-02', 'เงินทดรองจ่ายพนักงาน', 'Advances to Employees', 4, 0, 0, 17, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1123-03', 'ค่าใช้จ่ายจ่ายล่วงหน้า', 'Prepaid Expenses', 4, 0, 0, 18, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1123-04', 'รายได้ค้างรับ', 'Accrued Income', 4, 0, 0, 19, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1130-00', 'สินค้าคงเหลือ', 'Inventories', 3, 1, 0, 20, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1131-01', 'สินค้าสำเร็จรูป', 'Finished Goods', 4, 0, 0, 21, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1131-02', 'งานระหว่างทำ', 'Work in Process', 4, 0, 0, 22, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1131-03', 'วัตถุดิบ', 'Raw Materials', 4, 0, 0, 23, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1131-04', 'วัสดุสิ้นเปลือง', 'Supplies', 4, 0, 0, 24, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1131-05', 'สินค้าระหว่างทาง', 'Goods in Transit', 4, 0, 0, 25, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1140-00', 'สินทรัพย์หมุนเวียนอื่น', 'Other Current Assets', 3, 1, 0, 26, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1141-01', 'ภาษีซื้อ', 'Input VAT', 4, 0, 0, 27, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1141-02', 'ภาษีซื้อ - ยังไม่ถึงกำหนด', 'Input VAT - Not Yet Due', 4, 0, 0, 28, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1141-03', 'ภาษีถูกหัก ณ ที่จ่าย', 'Withholding Tax Deducted by Customers', 4, 0, 0, 29, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1141-04', 'เงินมัดจำจ่าย', 'Deposits Paid', 4, 0, 0, 30, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1200-00', 'สินทรัพย์ไม่หมุนเวียน', 'Non-current Assets', 2, 1, 0, 31, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1210-00', 'ที่ดิน อาคารและอุปกรณ์', 'Property, Plant and Equipment', 3, 1, 0, 32, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1211-01', 'ที่ดิน', 'Land', 4, 0, 0, 33, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1212-01', 'อาคาร', 'Buildings', 4, 0, 0, 34, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1212-09', 'ค่าเสื่อมราคาสะสม - อาคาร', 'Accumulated Depreciation - Buildings', 4, 0, 0, 35, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1213-01', 'เครื่องจักรและอุปกรณ์', 'Machinery and Equipment', 4, 0, 0, 36, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1213-09', 'ค่าเสื่อมราคาสะสม - เครื่องจักร', 'Accumulated Depreciation - Machinery', 4, 0, 0, 37, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1214-01', 'เครื่องตกแต่งและเครื่องใช้สำนักงาน', 'Furniture and Office Equipment', 4, 0, 0, 38, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1214-09', 'ค่าเสื่อมราคาสะสม - เครื่องใช้สำนักงาน', 'Accumulated Depreciation - Office Equipment', 4, 0, 0, 39, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1215-01', 'ยานพาหนะ', 'Vehicles', 4, 0, 0, 40, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1215-09', 'ค่าเสื่อมราคาสะสม - ยานพาหนะ', 'Accumulated Depreciation - Vehicles', 4, 0, 0, 41, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1216-01', 'คอมพิวเตอร์', 'Computers', 4, 0, 0, 42, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1216-09', 'ค่าเสื่อมราคาสะสม - คอมพิวเตอร์', 'Accumulated Depreciation - Computers', 4, 0, 0, 43, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1220-00', 'สินทรัพย์ไม่มีตัวตน', 'Intangible Assets', 3, 1, 0, 44, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1221-01', 'โปรแกรมคอมพิวเตอร์', 'Software', 4, 0, 0, 45, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1221-09', 'ค่าตัดจำหน่ายสะสม - โปรแกรม', 'Accumulated Amortisation - Software', 4, 0, 0, 46, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('1230-01', 'เงินประกันการเช่า', 'Rental Deposits', 3, 0, 0, 47, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2000-00', 'หนี้สิน', 'Liabilities', 1, 1, 0, 48, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2100-00', 'หนี้สินหมุนเวียน', 'Current Liabilities', 2, 1, 0, 49, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2110-01', 'เงินเบิกเกินบัญชีธนาคาร', 'Bank Overdrafts', 3, 0, 0, 50, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2110-02', 'เงินกู้ยืมระยะสั้นจากธนาคาร', 'Short-term Bank Loans', 3, 0, 0, 51, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2120-00', 'เจ้าหนี้การค้าและเจ้าหนี้อื่น', 'Trade and Other Payables', 3, 1, 0, 52, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2121-01', 'เจ้าหนี้การค้า', 'Trade Payables', 4, 0, 0, 53, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2121-02', 'เจ้าหนี้การค้า - กิจการที่เกี่ยวข้อง', 'Trade Payables - Related Parties', 4, 0, 0, 54, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2122-01', 'เช็คจ่ายลงวันที่ล่วงหน้า', 'Post-dated Cheques Issued', 4, 0, 0, 55, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2123-01', 'เจ้าหนี้อื่น', 'Other Payables', 4, 0, 0, 56, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2123-02', 'ค่าใช้จ่ายค้างจ่าย', 'Accrued Expenses', 4, 0, 0, 57, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2123-03', 'เงินเดือนค้างจ่าย', 'Accrued Salaries', 4, 0, 0, 58, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2123-04', 'เงินประกันสังคมค้างจ่าย', 'Social Security Payable', 4, 0, 0, 59, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2123-05', 'เงินรับล่วงหน้าจากลูกค้า', 'Advances from Customers', 4, 0, 0, 60, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2130-00', 'ภาษีค้างจ่าย', 'Taxes Payable', 3, 1, 0, 61, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2131-01', 'ภาษีขาย', 'Output VAT', 4, 0, 0, 62, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2131-02', 'ภาษีขาย - ยังไม่ถึงกำหนด', 'Output VAT - Not Yet Due', 4, 0, 0, 63, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2131-03', 'ภาษีมูลค่าเพิ่มค้างจ่าย', 'VAT Payable', 4, 0, 0, 64, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2132-01', 'ภาษีหัก ณ ที่จ่ายค้างจ่าย ภ.ง.ด.1', 'Withholding Tax Payable - PND 1', 4, 0, 0, 65, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2132-02', 'ภาษีหัก ณ ที่จ่ายค้างจ่าย ภ.ง.ด.3', 'Withholding Tax Payable - PND 3', 4, 0, 0, 66, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2132-03', 'ภาษีหัก ณ ที่จ่ายค้างจ่าย ภ.ง.ด.53', 'Withholding Tax Payable - PND 53', 4, 0, 0, 67, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2133-01', 'ภาษีเงินได้นิติบุคคลค้างจ่าย', 'Corporate Income Tax Payable', 4, 0, 0, 68, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2200-00', 'หนี้สินไม่หมุนเวียน', 'Non-current Liabilities', 2, 1, 0, 69, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2210-01', 'เงินกู้ยืมระยะยาวจากธนาคาร', 'Long-term Bank Loans', 3, 0, 0, 70, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2220-01', 'หนี้สินตามสัญญาเช่า', 'Lease Liabilities', 3, 0, 0, 71, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2230-01', 'ภาระผูกพันผลประโยชน์พนักงาน', 'Employee Benefit Obligations', 3, 0, 0, 72, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('2240-01', 'เงินกู้ยืมจากกรรมการ', 'Loans from Directors', 3, 0, 0, 73, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('3000-00', 'ส่วนของผู้ถือหุ้น', 'Shareholders'' Equity', 1, 1, 0, 74, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('3100-01', 'ทุนจดทะเบียนและชำระแล้ว', 'Issued and Paid-up Capital', 2, 0, 0, 75, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('3200-01', 'สำรองตามกฎหมาย', 'Legal Reserve', 2, 0, 0, 76, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('3300-01', 'กำไรสะสมยังไม่ได้จัดสรร', 'Unappropriated Retained Earnings', 2, 0, 0, 77, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('3400-01', 'กำไร (ขาดทุน) สุทธิงวดปัจจุบัน', 'Net Profit (Loss) for the Period', 2, 0, 0, 78, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4000-00', 'รายได้', 'Revenue', 1, 1, 0, 79, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4100-00', 'รายได้จากการขาย', 'Sales Revenue', 2, 1, 0, 80, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4110-01', 'ขายสินค้า', 'Sales of Goods', 3, 0, 0, 81, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4110-02', 'ขายสินค้า - ส่งออก', 'Export Sales', 3, 0, 0, 82, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4110-03', 'รับคืนสินค้า', 'Sales Returns', 3, 0, 0, 83, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4110-04', 'ส่วนลดจ่าย', 'Sales Discounts', 3, 0, 0, 84, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4120-01', 'รายได้ค่าบริการ', 'Service Income', 3, 0, 0, 85, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4120-02', 'รายได้ค่าติดตั้ง', 'Installation Income', 3, 0, 0, 86, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4200-00', 'รายได้อื่น', 'Other Income', 2, 1, 0, 87, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4210-01', 'ดอกเบี้ยรับ', 'Interest Income', 3, 0, 0, 88, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4210-02', 'กำไรจากอัตราแลกเปลี่ยน', 'Foreign Exchange Gain', 3, 0, 0, 89, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4210-03', 'กำไรจากการจำหน่ายสินทรัพย์', 'Gain on Disposal of Assets', 3, 0, 0, 90, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4210-04', 'รายได้เบ็ดเตล็ด', 'Miscellaneous Income', 3, 0, 0, 91, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('4210-05', 'ส่วนลดรับ', 'Purchase Discounts Received', 3, 0, 0, 92, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5000-00', 'ค่าใช้จ่าย', 'Expenses', 1, 1, 0, 93, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5100-00', 'ต้นทุนขายและบริการ', 'Cost of Sales and Services', 2, 1, 0, 94, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5110-01', 'ต้นทุนขายสินค้า', 'Cost of Goods Sold', 3, 0, 0, 95, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5110-02', 'ซื้อสินค้า', 'Purchases', 3, 0, 0, 96, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5110-03', 'ส่งคืนสินค้า', 'Purchase Returns', 3, 0, 0, 97, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5110-04', 'ค่าขนส่งเข้า', 'Freight In', 3, 0, 0, 98, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5120-01', 'ต้นทุนบริการ', 'Cost of Services', 3, 0, 0, 99, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5120-02', 'ค่าแรงทางตรง', 'Direct Labour', 3, 0, 0, 100, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5120-03', 'ค่าใช้จ่ายการผลิต', 'Manufacturing Overhead', 3, 0, 0, 101, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5200-00', 'ค่าใช้จ่ายในการขาย', 'Selling Expenses', 2, 1, 0, 102, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5210-01', 'เงินเดือนพนักงานขาย', 'Sales Salaries', 3, 0, 0, 103, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5210-02', 'ค่านายหน้า', 'Commissions', 3, 0, 0, 104, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5210-03', 'ค่าโฆษณาและส่งเสริมการขาย', 'Advertising and Promotion', 3, 0, 0, 105, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5210-04', 'ค่าขนส่งออก', 'Freight Out', 3, 0, 0, 106, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5210-05', 'ค่ารับรอง', 'Entertainment', 3, 0, 0, 107, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5210-06', 'ค่าเดินทางฝ่ายขาย', 'Sales Travel', 3, 0, 0, 108, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5300-00', 'ค่าใช้จ่ายในการบริหาร', 'Administrative Expenses', 2, 1, 0, 109, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5310-01', 'เงินเดือนและค่าจ้าง', 'Salaries and Wages', 3, 0, 0, 110, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5310-02', 'ค่าล่วงเวลา', 'Overtime', 3, 0, 0, 111, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5310-03', 'เงินสมทบประกันสังคม', 'Social Security Contributions', 3, 0, 0, 112, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5310-04', 'สวัสดิการพนักงาน', 'Staff Welfare', 3, 0, 0, 113, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5310-05', 'ค่าฝึกอบรม', 'Training', 3, 0, 0, 114, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5320-01', 'ค่าเช่าสำนักงาน', 'Office Rent', 3, 0, 1, 115, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5320-02', 'ค่าไฟฟ้า', 'Electricity', 3, 0, 1, 116, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5320-03', 'ค่าน้ำประปา', 'Water', 3, 0, 0, 117, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5320-04', 'ค่าโทรศัพท์และอินเทอร์เน็ต', 'Telephone and Internet', 3, 0, 0, 118, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5320-05', 'ค่าไปรษณีย์', 'Postage', 3, 0, 0, 119, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5330-01', 'ค่าเครื่องเขียนและแบบพิมพ์', 'Stationery and Printing', 3, 0, 0, 120, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5330-02', 'ค่าซ่อมแซมและบำรุงรักษา', 'Repairs and Maintenance', 3, 0, 0, 121, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5330-03', 'ค่าน้ำมันเชื้อเพลิง', 'Fuel', 3, 0, 0, 122, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5330-04', 'ค่าเบี้ยประกันภัย', 'Insurance', 3, 0, 0, 123, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5330-05', 'ค่าธรรมเนียมธนาคาร', 'Bank Charges', 3, 0, 0, 124, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5330-06', 'ค่าสอบบัญชี', 'Audit Fees', 3, 0, 0, 125, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5330-07', 'ค่าที่ปรึกษา', 'Consulting Fees', 3, 0, 0, 126, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5330-08', 'ค่าภาษีอากรและค่าธรรมเนียม', 'Taxes and Fees', 3, 0, 0, 127, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5330-09', 'ค่าเดินทาง', 'Travel', 3, 0, 0, 128, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5330-10', 'ค่าบริจาค', 'Donations', 3, 0, 0, 129, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5330-11', 'ค่าใช้จ่ายเบ็ดเตล็ด', 'Miscellaneous Expenses', 3, 0, 0, 130, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5340-01', 'ค่าเสื่อมราคา - อาคาร', 'Depreciation - Buildings', 3, 0, 0, 131, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5340-02', 'ค่าเสื่อมราคา - เครื่องจักร', 'Depreciation - Machinery', 3, 0, 0, 132, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5340-03', 'ค่าเสื่อมราคา - เครื่องใช้สำนักงาน', 'Depreciation - Office Equipment', 3, 0, 0, 133, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5340-04', 'ค่าเสื่อมราคา - ยานพาหนะ', 'Depreciation - Vehicles', 3, 0, 0, 134, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5340-05', 'ค่าเสื่อมราคา - คอมพิวเตอร์', 'Depreciation - Computers', 3, 0, 0, 135, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5340-06', 'ค่าตัดจำหน่าย - โปรแกรม', 'Amortisation - Software', 3, 0, 0, 136, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5350-01', 'หนี้สงสัยจะสูญ', 'Doubtful Debts', 3, 0, 0, 137, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5350-02', 'ขาดทุนจากอัตราแลกเปลี่ยน', 'Foreign Exchange Loss', 3, 0, 0, 138, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5350-03', 'ขาดทุนจากการจำหน่ายสินทรัพย์', 'Loss on Disposal of Assets', 3, 0, 0, 139, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5350-04', 'ผลต่างจากการปัดเศษ', 'Rounding Differences', 3, 0, 0, 140, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5400-00', 'ค่าใช้จ่ายทางการเงินและภาษี', 'Finance Costs and Tax', 2, 1, 0, 141, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5410-01', 'ดอกเบี้ยจ่าย', 'Interest Expense', 3, 0, 0, 142, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5410-02', 'ดอกเบี้ยตามสัญญาเช่า', 'Lease Interest', 3, 0, 0, 143, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('5420-01', 'ภาษีเงินได้นิติบุคคล', 'Corporate Income Tax', 3, 0, 0, 144, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('9000-00', 'บัญชีพัก', 'Suspense Accounts', 1, 1, 0, 145, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('9100-01', 'บัญชีพักรอตรวจสอบ', 'Suspense - Under Review', 2, 0, 0, 146, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('9100-02', 'บัญชีพักเงินโอน', 'Suspense - Transfers', 2, 0, 0, 147, 1);
INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl, TACCAutoAllocate, TACCSort, TACCFlag1) VALUES ('9200-01', 'บัญชีปิดงวด (เลิกใช้)', 'Closing Account (Obsolete)', 2, 0, 0, 148, 0);

-- Account map: the keys automatic posting names instead of accounts. UNUSED has
-- no account yet (a posting to it adds nothing).
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('CASH', 'เงินสด', 'Cash', '1111-01', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('BANK', 'เงินฝากธนาคาร', 'Bank', '1112-01', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('AR', 'ลูกหนี้การค้า', 'Trade receivables', '1121-01', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('AP', 'เจ้าหนี้การค้า', 'Trade payables', '2121-01', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('SALES', 'ขายสินค้า', 'Sales', '4110-01', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('SERVICE', 'รายได้ค่าบริการ', 'Service income', '4120-01', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('SALESDISC', 'ส่วนลดจ่าย', 'Sales discounts', '4110-04', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('OUTVAT', 'ภาษีขาย', 'Output VAT', '2131-01', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('INVAT', 'ภาษีซื้อ', 'Input VAT', '1141-01', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('WHTREC', 'ภาษีถูกหัก ณ ที่จ่าย', 'Withholding tax deducted', '1141-03', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('WHTPAY', 'ภาษีหัก ณ ที่จ่ายค้างจ่าย', 'Withholding tax payable', '2132-03', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('PURCHASE', 'ซื้อสินค้า', 'Purchases', '5110-02', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('INVENTORY', 'สินค้าสำเร็จรูป', 'Finished goods', '1131-01', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('COGS', 'ต้นทุนขายสินค้า', 'Cost of goods sold', '5110-01', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('BANKCHARGE', 'ค่าธรรมเนียมธนาคาร', 'Bank charges', '5330-05', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('ROUNDING', 'ผลต่างจากการปัดเศษ', 'Rounding differences', '5350-04', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('RENT', 'ค่าเช่าสำนักงาน', 'Office rent', '5320-01', 1);
INSERT INTO QD8TAccountMap (TACMAlias, TACMName, TACMName2, TACMTACCCode, TACMFlag1) VALUES ('UNUSED', 'คีย์ที่ยังไม่ได้ผูกบัญชี', 'Key without an account', NULL, 1);

-- Allocation: rent half to accounting, 30% to sales, 20% to the Chiang Mai
-- warehouse; electricity in thirds (the last line takes the satang left over).
INSERT INTO QD8TACAllocate (TACLTACCCode, TACLLn, TACLToTACCCode, TACLShareRatioText, TACLTBraCode, TACLTDivCode, TACLTDepCode, TACLTSecCode) VALUES ('5320-01', 1, '5320-01', '50%', 'HQ', 'D01', 'P11', NULL);
INSERT INTO QD8TACAllocate (TACLTACCCode, TACLLn, TACLToTACCCode, TACLShareRatioText, TACLTBraCode, TACLTDivCode, TACLTDepCode, TACLTSecCode) VALUES ('5320-01', 2, '5320-01', '30%', 'HQ', 'D02', 'P21', NULL);
INSERT INTO QD8TACAllocate (TACLTACCCode, TACLLn, TACLToTACCCode, TACLShareRatioText, TACLTBraCode, TACLTDivCode, TACLTDepCode, TACLTSecCode) VALUES ('5320-01', 3, '5320-01', '20%', 'CNX', 'D03', 'P31', 'S311');
INSERT INTO QD8TACAllocate (TACLTACCCode, TACLLn, TACLToTACCCode, TACLShareRatioText, TACLTBraCode, TACLTDivCode, TACLTDepCode, TACLTSecCode) VALUES ('5320-02', 1, '5320-02', '1/3', 'HQ', 'D01', 'P11', NULL);
INSERT INTO QD8TACAllocate (TACLTACCCode, TACLLn, TACLToTACCCode, TACLShareRatioText, TACLTBraCode, TACLTDivCode, TACLTDepCode, TACLTSecCode) VALUES ('5320-02', 2, '5320-02', '1/3', 'HQ', 'D02', 'P21', NULL);
INSERT INTO QD8TACAllocate (TACLTACCCode, TACLLn, TACLToTACCCode, TACLShareRatioText, TACLTBraCode, TACLTDivCode, TACLTDepCode, TACLTSecCode) VALUES ('5320-02', 3, '5320-02', '1/3', 'CNX', 'D03', 'P31', NULL);

-- Automatic posting formats. An invoice: X1 amount before VAT, X2 VAT, X3 the
-- service part of X1. A receipt or payment: X1 amount settled, X2 withholding tax,
-- X3 bank fee.
INSERT INTO QD8TGLFormatGroup (TGFGAlias, TGFGName, TGFGName2, TGFGTGLBCode, TGFGFlag1) VALUES ('ARINVOICE', 'ขายเชื่อ (ใบแจ้งหนี้)', 'Credit sale (invoice)', 'SV', 1);
INSERT INTO QD8TGLFormatGroup (TGFGAlias, TGFGName, TGFGName2, TGFGTGLBCode, TGFGFlag1) VALUES ('ARRECEIPT', 'รับชำระหนี้', 'Customer receipt', 'RV', 1);
INSERT INTO QD8TGLFormatGroup (TGFGAlias, TGFGName, TGFGName2, TGFGTGLBCode, TGFGFlag1) VALUES ('APINVOICE', 'ซื้อเชื่อ', 'Credit purchase', 'PUV', 1);
INSERT INTO QD8TGLFormatGroup (TGFGAlias, TGFGName, TGFGName2, TGFGTGLBCode, TGFGFlag1) VALUES ('APPAYMENT', 'จ่ายชำระหนี้', 'Supplier payment', 'PV', 1);
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('ARINVOICE', 1, 'AR', NULL, 'D', 'X1+X2', 'ลูกหนี้ตามใบแจ้งหนี้', 'Receivable per invoice');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('ARINVOICE', 2, 'SALES', NULL, 'C', 'X1-X3', 'ขายสินค้า', 'Sales');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('ARINVOICE', 3, 'SERVICE', NULL, 'C', 'X3', 'รายได้ค่าบริการ', 'Service income');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('ARINVOICE', 4, 'OUTVAT', NULL, 'C', 'X2', 'ภาษีขาย', 'Output VAT');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('ARRECEIPT', 1, 'BANK', NULL, 'D', 'X1-X2-X3', 'รับชำระเข้าบัญชีธนาคาร', 'Received into bank');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('ARRECEIPT', 2, 'WHTREC', NULL, 'D', 'X2', 'ภาษีถูกหัก ณ ที่จ่าย', 'Withholding tax deducted');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('ARRECEIPT', 3, 'BANKCHARGE', NULL, 'D', 'X3', 'ค่าธรรมเนียมโอน', 'Transfer fee');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('ARRECEIPT', 4, 'AR', NULL, 'C', 'X1', 'ตัดลูกหนี้', 'Receivable settled');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('APINVOICE', 1, 'PURCHASE', NULL, 'D', 'X1', 'ซื้อสินค้า', 'Purchases');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('APINVOICE', 2, 'INVAT', NULL, 'D', 'X2', 'ภาษีซื้อ', 'Input VAT');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('APINVOICE', 3, 'AP', NULL, 'C', 'X1+X2', 'เจ้าหนี้ตามใบกำกับ', 'Payable per tax invoice');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('APPAYMENT', 1, 'AP', NULL, 'D', 'X1', 'ตัดเจ้าหนี้', 'Payable settled');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('APPAYMENT', 2, 'BANK', NULL, 'C', 'X1-X2', 'จ่ายชำระจากบัญชีธนาคาร', 'Paid from bank');
INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription, TGFMDescription2) VALUES ('APPAYMENT', 3, 'WHTPAY', NULL, 'C', 'X2', 'ภาษีหัก ณ ที่จ่าย', 'Withholding tax');

-- Accounting years: last year (closed), this year and next year, each with its
-- twelve monthly periods (open). Years are calendar years, as the voucher lines
-- carry them.
WITH RECURSIVE years(y) AS (SELECT CAST(to_char(CURRENT_DATE, 'YYYY') AS INTEGER) - 1 UNION ALL SELECT y + 1 FROM years WHERE y < CAST(to_char(CURRENT_DATE, 'YYYY') AS INTEGER) + 1)
INSERT INTO QD8TACYear (TACYID, TACYName, TACYName2, TACYClosed)
SELECT y, 'ปีบัญชี ' || (y + 543), 'Fiscal year ' || y, CASE WHEN y < CAST(to_char(CURRENT_DATE, 'YYYY') AS INTEGER) THEN 1 ELSE 0 END FROM years;
WITH RECURSIVE months(m) AS (SELECT 1 UNION ALL SELECT m + 1 FROM months WHERE m < 12)
INSERT INTO QD8TACPeriod (TACPTACYID, TACPID, TACPClosed)
SELECT TACYID, m, TACYClosed FROM QD8TACYear, months;

-- Vouchers: 360 of twelve everyday kinds, spread over the last 400 days, numbered
-- the way the voucher panel numbers them (book, year and month of the date, four
-- digits), with the running numbers set after them. Each balances; the VAT kinds
-- split their total into 7% VAT and the amount before it. The newest twenty are not
-- confirmed yet; two in three of the older ones are approved; a few are cancelled.
-- Half belong to project PJ01 (the project John's lists open on), some to PJ02.
WITH RECURSIVE series(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM series WHERE i < 360),
kinds(kind, book, descr) AS (VALUES
    (0, 'JV', 'ค่าเสื่อมราคาเครื่องใช้สำนักงานประจำเดือน'),
    (1, 'PV', 'จ่ายค่าโทรศัพท์และอินเทอร์เน็ต'),
    (2, 'PV', 'เบิกเงินสดย่อยซื้อเครื่องเขียน'),
    (3, 'RV', 'รับชำระหนี้จากลูกค้า'),
    (4, 'SV', 'ขายสินค้าเงินเชื่อ'),
    (5, 'PUV', 'ซื้อสินค้าเงินเชื่อ'),
    (6, 'PV', 'จ่ายชำระหนี้ผู้จำหน่าย'),
    (7, 'JV', 'ตั้งค่าสอบบัญชีค้างจ่าย'),
    (8, 'PV', 'จ่ายเงินเดือนพนักงาน'),
    (9, 'RV', 'ดอกเบี้ยเงินฝากออมทรัพย์'),
    (10, 'PV', 'จ่ายค่าน้ำมันรถส่งของ'),
    (11, 'JV', 'โอนเงินระหว่างบัญชีธนาคาร')),
offsets(i, book, descr, back) AS (
    SELECT i, book, descr, (360 - i) * 10 / 9 FROM series JOIN kinds ON kind = i % 12),
dated(i, book, descr, d) AS (SELECT i, book, descr, CURRENT_DATE - back FROM offsets),
numbered(i, book, descr, d, seq) AS (
    SELECT i, book, descr, d, '000' || ROW_NUMBER() OVER (PARTITION BY book, to_char(d, 'YYMM') ORDER BY d, i) FROM dated)
INSERT INTO QD8TGLTrans (TGLTNo, TGLTDate, TGLTTGLBCode, TGLTMode, TGLTTBraCode, TGLTTPrjCode, TGLTDescription, TGLTInputSource, TGLTCreateBy, TGLTCreateDate, TGLTEditBy, TGLTEditDate, TGLTRevision, TGLTAmount, TGLTBalanceFlag, TGLTApproveStatus, TGLTCancelStatus, TGLTConfirmStatus, TGLTFlag3)
SELECT book || to_char(d, 'YYMM') || substr(seq, length(seq) - 3), d, book, 1, CASE WHEN i % 5 = 0 THEN 'CNX' ELSE 'HQ' END,
       CASE WHEN i % 2 = 0 THEN 'PJ01' WHEN i % 5 = 1 THEN 'PJ02' END, descr, 'JV',
       CASE WHEN i % 3 = 0 THEN 'JOHN' ELSE 'SOMCHAI' END, d, CASE WHEN i % 3 = 0 THEN 'JOHN' ELSE 'SOMCHAI' END, d, 0,
       500 + (i * 7919) % 98000 + (i * 37) % 100 / 100.0, 0, CASE WHEN i <= 300 AND i % 3 <> 1 THEN 1 ELSE 0 END,
       CASE WHEN i % 47 = 0 THEN 1 ELSE 0 END, CASE WHEN i > 340 THEN 0 ELSE 1 END, d
FROM numbered;
WITH lines(descr, ln, account, side, part) AS (VALUES
    ('ค่าเสื่อมราคาเครื่องใช้สำนักงานประจำเดือน', 1, '5340-03', 'D', 'T'), ('ค่าเสื่อมราคาเครื่องใช้สำนักงานประจำเดือน', 2, '1214-09', 'C', 'T'),
    ('จ่ายค่าโทรศัพท์และอินเทอร์เน็ต', 1, '5320-04', 'D', 'N'), ('จ่ายค่าโทรศัพท์และอินเทอร์เน็ต', 2, '1141-01', 'D', 'V'), ('จ่ายค่าโทรศัพท์และอินเทอร์เน็ต', 3, '1112-01', 'C', 'T'),
    ('เบิกเงินสดย่อยซื้อเครื่องเขียน', 1, '5330-01', 'D', 'N'), ('เบิกเงินสดย่อยซื้อเครื่องเขียน', 2, '1141-01', 'D', 'V'), ('เบิกเงินสดย่อยซื้อเครื่องเขียน', 3, '1111-02', 'C', 'T'),
    ('รับชำระหนี้จากลูกค้า', 1, '1112-01', 'D', 'T'), ('รับชำระหนี้จากลูกค้า', 2, '1121-01', 'C', 'T'),
    ('ขายสินค้าเงินเชื่อ', 1, '1121-01', 'D', 'T'), ('ขายสินค้าเงินเชื่อ', 2, '4110-01', 'C', 'N'), ('ขายสินค้าเงินเชื่อ', 3, '2131-01', 'C', 'V'),
    ('ซื้อสินค้าเงินเชื่อ', 1, '5110-02', 'D', 'N'), ('ซื้อสินค้าเงินเชื่อ', 2, '1141-01', 'D', 'V'), ('ซื้อสินค้าเงินเชื่อ', 3, '2121-01', 'C', 'T'),
    ('จ่ายชำระหนี้ผู้จำหน่าย', 1, '2121-01', 'D', 'T'), ('จ่ายชำระหนี้ผู้จำหน่าย', 2, '1112-01', 'C', 'T'),
    ('ตั้งค่าสอบบัญชีค้างจ่าย', 1, '5330-06', 'D', 'T'), ('ตั้งค่าสอบบัญชีค้างจ่าย', 2, '2123-02', 'C', 'T'),
    ('จ่ายเงินเดือนพนักงาน', 1, '5310-01', 'D', 'T'), ('จ่ายเงินเดือนพนักงาน', 2, '1112-01', 'C', 'T'),
    ('ดอกเบี้ยเงินฝากออมทรัพย์', 1, '1112-02', 'D', 'T'), ('ดอกเบี้ยเงินฝากออมทรัพย์', 2, '4210-01', 'C', 'T'),
    ('จ่ายค่าน้ำมันรถส่งของ', 1, '5330-03', 'D', 'N'), ('จ่ายค่าน้ำมันรถส่งของ', 2, '1141-01', 'D', 'V'), ('จ่ายค่าน้ำมันรถส่งของ', 3, '1111-01', 'C', 'T'),
    ('โอนเงินระหว่างบัญชีธนาคาร', 1, '1112-02', 'D', 'T'), ('โอนเงินระหว่างบัญชีธนาคาร', 2, '1112-01', 'C', 'T')),
amounts(no, ln, account, side, amount, d, bra, descr) AS (
    SELECT TGLTNo, ln, account, side,
           CASE part WHEN 'T' THEN TGLTAmount WHEN 'N' THEN ROUND(TGLTAmount * 100 / 107, 2) ELSE TGLTAmount - ROUND(TGLTAmount * 100 / 107, 2) END,
           TGLTDate, TGLTTBraCode, lines.descr
    FROM QD8TGLTrans JOIN lines ON lines.descr = TGLTDescription)
INSERT INTO QD8TGLTransSub (TGTSTGLTNo, TGTSBlock, TGTSLn, TGTSInputSource, TGTSStatus, TGTSTACCCode, TGTSDebit, TGTSCredit, TGTSName, TGTSName2, TGTSDescription, TGTSDescription2, TGTSChequeNo, TGTSTACPTACYID, TGTSTACPID, TGTSTBraCode, TGTSBalanceFlag, TGTSFlag1, TGTSFlag3)
SELECT no, 0, ln, 'JV', 0, account, CASE WHEN side = 'D' THEN amount ELSE 0 END, CASE WHEN side = 'C' THEN amount ELSE 0 END,
       TACCName, TACCName2, descr, NULL, NULL, CAST(to_char(d, 'YYYY') AS INTEGER), CAST(to_char(d, 'MM') AS INTEGER), bra, 0, 1, d
FROM amounts JOIN QD8TACChart ON TACCCode = account;
INSERT INTO QD8TRunningNumber (TRunKey, TRunSubKey, TRunLastNo)
SELECT 'DAILYRECORDCALL', substr(TGLTNo, 1, length(TGLTNo) - 4), MAX(CAST(substr(TGLTNo, length(TGLTNo) - 3) AS INTEGER))
FROM QD8TGLTrans GROUP BY substr(TGLTNo, 1, length(TGLTNo) - 4);

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
-- Invoices carry 7% VAT: the amount before it and the VAT make up the total.
UPDATE QD8TARInvoice SET TIvoVATAmount = ROUND(TIvoAmount * 7 / 107, 2), TIvoNetAmount = TIvoAmount - ROUND(TIvoAmount * 7 / 107, 2);
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
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'CENTERFXRATE', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
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
-- Credit: what each customer may still use (C004 sells for cash only; C005 is over its
-- limit), cheques received in every status, and a right to save a sales order above the
-- customer's credit that only John holds.
UPDATE QD8TAR SET TARNCreditAvaiBal=420000 WHERE TARNCode='C001';
UPDATE QD8TAR SET TARNCreditAvaiBal=230000 WHERE TARNCode='C002';
UPDATE QD8TAR SET TARNCreditAvaiBal=950000 WHERE TARNCode='C003';
UPDATE QD8TAR SET TARNCreditAvaiBal=-52000 WHERE TARNCode='C005';
INSERT INTO QD8TChequeRec (TCHRNo, TCHRChqNo, TCHRDate, TCHRChqDate, TCHRTARNCode, TCHRBankCode, TCHRTotalRate, TCHRChqStatus, TCHRTBraCode, TCHRDescription) VALUES ('RC0000001', '1002345', CURRENT_DATE - 5, CURRENT_DATE + 10, 'C001', 'BBL', 40000, 0, 'CNX', 'เช็คล่วงหน้า ค่าปูนซีเมนต์');
INSERT INTO QD8TChequeRec (TCHRNo, TCHRChqNo, TCHRDate, TCHRChqDate, TCHRTARNCode, TCHRBankCode, TCHRTotalRate, TCHRChqStatus, TCHRTBraCode, TCHRDescription) VALUES ('RC0000002', '1002346', CURRENT_DATE - 3, CURRENT_DATE - 1, 'C001', 'BBL', 25000, 1, 'CNX', 'Deposited, not yet cleared');
INSERT INTO QD8TChequeRec (TCHRNo, TCHRChqNo, TCHRDate, TCHRChqDate, TCHRTARNCode, TCHRBankCode, TCHRTotalRate, TCHRChqStatus, TCHRTBraCode, TCHRDescription) VALUES ('RC0000003', '5550101', CURRENT_DATE - 40, CURRENT_DATE - 30, 'C002', 'KBANK', 32500, 2, 'HQ', 'เช็คผ่านแล้ว');
INSERT INTO QD8TChequeRec (TCHRNo, TCHRChqNo, TCHRDate, TCHRChqDate, TCHRTARNCode, TCHRBankCode, TCHRTotalRate, TCHRChqStatus, TCHRTBraCode, TCHRDescription) VALUES ('RC0000004', '5550102', CURRENT_DATE - 20, CURRENT_DATE - 12, 'C002', 'KBANK', 15500, 3, 'HQ', 'Returned: insufficient funds');
INSERT INTO QD8TChequeRec (TCHRNo, TCHRChqNo, TCHRDate, TCHRChqDate, TCHRTARNCode, TCHRBankCode, TCHRTotalRate, TCHRChqStatus, TCHRTBraCode, TCHRDescription) VALUES ('RC0000005', '7770001', CURRENT_DATE - 2, CURRENT_DATE + 25, 'C003', 'SCB', 13000, 0, 'CNX', 'เช็คล่วงหน้า');
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'SOOVERCREDIT', 1, 1, 0, 0, 0, 0, 0, 0, 0, 0);
-- Point documents a sales order (type 1) may spend: free ones, one cancelled, one not yet
-- approved and one already spent by an order.
INSERT INTO QD8TPointTrans (TPiTNo, TPiTDate, TPiTType, TPiTTARNCode, TPiTTotalQuantity, TPiTRefNo, TPiTTBraCode, TPiTDescription, TPiTCreateBy, TPiTCreateDate, TPiTConfirmStatus, TPiTApproveStatus, TPiTCancelStatus) VALUES ('PT0000001', CURRENT_DATE - 30, 1, 'C001', 1200, NULL, 'CNX', 'แลกส่วนลดปูนซีเมนต์', 'SOMCHAI', CURRENT_DATE - 30, 1, 1, 0);
INSERT INTO QD8TPointTrans (TPiTNo, TPiTDate, TPiTType, TPiTTARNCode, TPiTTotalQuantity, TPiTRefNo, TPiTTBraCode, TPiTDescription, TPiTCreateBy, TPiTCreateDate, TPiTConfirmStatus, TPiTApproveStatus, TPiTCancelStatus) VALUES ('PT0000002', CURRENT_DATE - 20, 1, 'C001', 500, '', 'CNX', 'Delivery free of charge', 'JOHN', CURRENT_DATE - 20, 1, 1, 0);
INSERT INTO QD8TPointTrans (TPiTNo, TPiTDate, TPiTType, TPiTTARNCode, TPiTTotalQuantity, TPiTRefNo, TPiTTBraCode, TPiTDescription, TPiTCreateBy, TPiTCreateDate, TPiTConfirmStatus, TPiTApproveStatus, TPiTCancelStatus) VALUES ('PT0000003', CURRENT_DATE - 15, 1, 'C001', 800, NULL, 'CNX', 'ยกเลิก: ลูกค้าขอเปลี่ยน', 'JOHN', CURRENT_DATE - 15, 1, 1, 1);
INSERT INTO QD8TPointTrans (TPiTNo, TPiTDate, TPiTType, TPiTTARNCode, TPiTTotalQuantity, TPiTRefNo, TPiTTBraCode, TPiTDescription, TPiTCreateBy, TPiTCreateDate, TPiTConfirmStatus, TPiTApproveStatus, TPiTCancelStatus) VALUES ('PT0000004', CURRENT_DATE - 12, 1, 'C002', 300, 'SO0000006', 'HQ', 'ส่วนลดหม้อหุงข้าว', 'SOMCHAI', CURRENT_DATE - 12, 1, 1, 0);
INSERT INTO QD8TPointTrans (TPiTNo, TPiTDate, TPiTType, TPiTTARNCode, TPiTTotalQuantity, TPiTRefNo, TPiTTBraCode, TPiTDescription, TPiTCreateBy, TPiTCreateDate, TPiTConfirmStatus, TPiTApproveStatus, TPiTCancelStatus) VALUES ('PT0000005', CURRENT_DATE - 4, 1, 'C002', 450, NULL, 'HQ', 'Awaiting approval', 'SOMCHAI', CURRENT_DATE - 4, 1, 0, 0);
INSERT INTO QD8TPointTransSub (TPoTTPitNo, TPoTLn, TPoTQuantity, TPoTPax, TPoTValue, TPoTDescription) VALUES ('PT0000001', 1, -1000, 2, 1000, 'ส่วนลด 1,000 บาท');
INSERT INTO QD8TPointTransSub (TPoTTPitNo, TPoTLn, TPoTQuantity, TPoTPax, TPoTValue, TPoTDescription) VALUES ('PT0000001', 2, -200, 1, 200, 'ส่วนลดค่าขนส่ง');
INSERT INTO QD8TPointTransSub (TPoTTPitNo, TPoTLn, TPoTQuantity, TPoTPax, TPoTValue, TPoTDescription) VALUES ('PT0000002', 1, -500, 1, 500, 'Free delivery');
INSERT INTO QD8TPointTransSub (TPoTTPitNo, TPoTLn, TPoTQuantity, TPoTPax, TPoTValue, TPoTDescription) VALUES ('PT0000004', 1, -300, 3, 300, 'ส่วนลด');
UPDATE QD8TSO SET TInvTJobNo='PT0000004' WHERE TSODNo='SO0000006';

-- Production: steps with their issue document code, section and location; one
-- product's own steps and quality-check sets; jobs in every type and state; a
-- production order with its lines and materials; a request and a sales order
-- behind the jobs; an issue against a job step.
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (0, 'Custom1', 'สี');
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (0, 'Custom2', 'ขนาด');
INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (0, 'Custom3', 'รุ่น');
INSERT INTO QD8TMRPStepName (TSepCode, TSepName, TSepName2, TSepDocCode, TSepTSecCode, TSepTLctCode, TSepSort, TSepFlag1) VALUES ('ST10', 'ตัดแผ่นโลหะ', 'Cutting', 'ICISSUEJOB', 'S311', 'WH-A', 1, 1);
INSERT INTO QD8TMRPStepName (TSepCode, TSepName, TSepName2, TSepDocCode, TSepTSecCode, TSepTLctCode, TSepSort, TSepFlag1) VALUES ('ST20', 'ประกอบตัวเครื่อง', 'Assembly', 'ICISSUEJOB', 'S311', 'WH-B', 2, 1);
INSERT INTO QD8TMRPStepName (TSepCode, TSepName, TSepName2, TSepDocCode, TSepTSecCode, TSepTLctCode, TSepSort, TSepFlag1) VALUES ('ST30', 'ทดสอบคุณภาพ', 'Quality test', 'ICISSUEPD', 'S311', NULL, 3, 1);
INSERT INTO QD8TProductMethod (TSpdTPdtCode, TSpdStep, TSpdLevel, TSpdTSepCode, TSpdTQCSCode, TSpdFlag1) VALUES ('P1001', 1, 1, 'ST10', NULL, 1);
INSERT INTO QD8TProductMethod (TSpdTPdtCode, TSpdStep, TSpdLevel, TSpdTSepCode, TSpdTQCSCode, TSpdFlag1) VALUES ('P1001', 2, 1, 'ST20', 'QC-P1001', 1);
INSERT INTO QD8TProductMethod (TSpdTPdtCode, TSpdStep, TSpdLevel, TSpdTSepCode, TSpdTQCSCode, TSpdFlag1) VALUES ('P1002', 1, 1, 'ST20', 'QC-P1002', 1);
INSERT INTO QD8TSO (TSODNo, TSOType, TSODDate, TSODDueDate, TSODTARNCode, TSODContactName, TSODRefNo, TSODTBraCode, TSODTPrjCode, TSODSaleCode, TSODDescription, TSODTotalAmount, TSODBillStatus, TSODCreateBy, TSODCreateDate, TSODConfirmStatus, TSODApproveStatus, TSODApproveNote, TSODCancelStatus) VALUES ('SO0000901', 0, CURRENT_DATE - 30, CURRENT_DATE + 30, 'C002', 'คุณสุดา พงษ์ไทย', 'CUS-901', 'HQ', 'PJ01', 'E001', 'หม้อหุงข้าวสั่งผลิต', 97500, 0, 'SOMCHAI', CURRENT_DATE - 30, 1, 1, '', 0);
INSERT INTO QD8TSOSub (TSOBTSODNo, TSOBLn, TSOBTPOSCode, TSOBPOSName, TSOBCustom1, TSOBCustom2, TSOBCustom3, TSOBQuantity, TSOBQuantity2, TSOBQuantity3, TSOBTUntCode, TSOBTUntCode2, TSOBTUntCode3, TSOBTotalArrear, TSOBTotalArrear2, TSOBTotalArrear3, TSOBPrice, TSOBAmount, TSOBDescription) VALUES ('SO0000901', 1, 'P1001', 'หม้อหุงข้าว 1.8 ลิตร', 'ขาว', '1.8 L', 'RC-18', 150, 15, 0, 'PCS', 'BOX', NULL, 150, 15, 0, 650, 97500, 'ส่งก่อนสิ้นเดือน');
INSERT INTO QD8TJob (TJobNo, TJobCode, TJobDate, TJobDueDate, TJobType, TJobTPrjCode, TJobTARNCode, TJobCustomerName, TJobRefNo, TJobTBraCode, TJobDescription, TJobInvoiceStatus, TJobIVCloseDate, TJobCloseStatus, TJobCreateBy, TJobCreateDate, TJobEditCode, TJobEditBy, TJobEditDate, TJobConfirmStatus, TJobConfirmDate, TJobConfirmBy, TJobApproveStatus, TJobApproveDate, TJobApproveBy, TJobCancelStatus) VALUES ('JOB0000001', 'JC-001', CURRENT_DATE - 28, CURRENT_DATE + 20, 0, 'PJ01', 'C002', 'ห้างหุ้นส่วนจำกัด ไทยพาณิชย์', 'SO0000901', 'HQ', 'ผลิตหม้อหุงข้าวตามใบสั่งขาย', NULL, NULL, 0, 'SOMCHAI', CURRENT_DATE - 28, 'R1', 'JOHN', CURRENT_DATE - 27, 1, CURRENT_DATE - 27, 'JOHN', 1, CURRENT_DATE - 26, 'SOMCHAI', 0);
INSERT INTO QD8TJob (TJobNo, TJobCode, TJobDate, TJobDueDate, TJobType, TJobTPrjCode, TJobTARNCode, TJobCustomerName, TJobRefNo, TJobTBraCode, TJobDescription, TJobInvoiceStatus, TJobIVCloseDate, TJobCloseStatus, TJobCreateBy, TJobCreateDate, TJobConfirmStatus, TJobApproveStatus, TJobCancelStatus) VALUES ('JOB0000002', 'JC-002', CURRENT_DATE - 20, CURRENT_DATE + 10, 3, 'PJ02', 'C001', 'Siam Wholesale', NULL, 'HQ', 'Stock for the showroom', 1, CURRENT_DATE + 30, 0, 'JOHN', CURRENT_DATE - 20, 1, 1, 0);
INSERT INTO QD8TJob (TJobNo, TJobCode, TJobDate, TJobDueDate, TJobType, TJobTPrjCode, TJobTARNCode, TJobCustomerName, TJobRefNo, TJobTBraCode, TJobDescription, TJobInvoiceStatus, TJobIVCloseDate, TJobCloseStatus, TJobCreateBy, TJobCreateDate, TJobConfirmStatus, TJobApproveStatus, TJobCancelStatus) VALUES ('JOB0000003', 'JC-003', CURRENT_DATE - 60, CURRENT_DATE - 30, 4, 'PJ01', 'C003', 'Lamphun Builders', NULL, 'CNX', 'ใบสั่งงานที่ปิดการออกใบแจ้งหนี้แล้ว', 1, CURRENT_DATE - 5, 0, 'JOHN', CURRENT_DATE - 60, 1, 1, 0);
INSERT INTO QD8TJob (TJobNo, TJobCode, TJobDate, TJobDueDate, TJobType, TJobTPrjCode, TJobTARNCode, TJobCustomerName, TJobRefNo, TJobTBraCode, TJobDescription, TJobInvoiceStatus, TJobIVCloseDate, TJobCloseStatus, TJobCreateBy, TJobCreateDate, TJobConfirmStatus, TJobApproveStatus, TJobApproveNote, TJobCancelStatus) VALUES ('JOB0000004', 'JC-004', CURRENT_DATE - 3, CURRENT_DATE + 30, 4, NULL, 'C004', 'Chiang Rai Hotel', NULL, 'HQ', 'Waiting for approval', 0, NULL, 0, 'JOHN', CURRENT_DATE - 3, 1, 0, 'รอราคา', 0);
INSERT INTO QD8TJob (TJobNo, TJobCode, TJobDate, TJobDueDate, TJobType, TJobTPrjCode, TJobTARNCode, TJobCustomerName, TJobRefNo, TJobTBraCode, TJobDescription, TJobInvoiceStatus, TJobIVCloseDate, TJobCloseStatus, TJobCreateBy, TJobCreateDate, TJobConfirmStatus, TJobApproveStatus, TJobCancelStatus, TJobCancelDate, TJobCancelBy, TJobCancelNote) VALUES ('JOB0000005', 'JC-005', CURRENT_DATE - 15, CURRENT_DATE + 5, 5, NULL, 'C005', 'ลูกค้ายกเลิก', NULL, 'HQ', 'งานซ่อมที่ยกเลิก', 0, NULL, 0, 'SOMCHAI', CURRENT_DATE - 15, 1, 1, 1, CURRENT_DATE - 14, 'SOMCHAI', 'ลูกค้ายกเลิกคำสั่ง');
INSERT INTO QD8TJob (TJobNo, TJobCode, TJobDate, TJobDueDate, TJobType, TJobTPrjCode, TJobTARNCode, TJobCustomerName, TJobRefNo, TJobTBraCode, TJobDescription, TJobInvoiceStatus, TJobIVCloseDate, TJobCloseStatus, TJobCreateBy, TJobCreateDate, TJobConfirmStatus, TJobApproveStatus, TJobCancelStatus) VALUES ('JOB0000006', 'JC-006', CURRENT_DATE - 10, CURRENT_DATE + 15, 5, 'PJ01', 'C002', 'ห้างหุ้นส่วนจำกัด ไทยพาณิชย์', NULL, 'HQ', 'งานซ่อมหม้อหุงข้าว', 0, NULL, 0, 'SOMCHAI', CURRENT_DATE - 10, 1, 1, 0);
INSERT INTO QD8TJob (TJobNo, TJobCode, TJobDate, TJobDueDate, TJobType, TJobTPrjCode, TJobTARNCode, TJobCustomerName, TJobRefNo, TJobTBraCode, TJobDescription, TJobInvoiceStatus, TJobIVCloseDate, TJobCloseStatus, TJobCreateBy, TJobCreateDate, TJobConfirmStatus, TJobApproveStatus, TJobCancelStatus) VALUES ('JOB0000007', 'JC-007', CURRENT_DATE - 90, CURRENT_DATE - 60, 6, NULL, 'C001', 'Siam Wholesale', NULL, 'HQ', 'Spare parts, closed', 0, NULL, 1, 'JOHN', CURRENT_DATE - 90, 1, 1, 0);
INSERT INTO QD8TJobSub (TJbMTJobNo, TJbMLn, TJbMTPdtCode, TJbMProductName, TJbMCustom1, TJbMCustom2, TJbMCustom3, TJbMQuantity, TJbMQuantity2, TJbMQuantity3, TJbMTUntCode, TJbMTUntCode2, TJbMTUntCode3, TJbMTotalArrear, TJbMTotalArrear2, TJbMTotalArrear3, TJbMFinishQT, TJbMFinishQT2, TJbMFinishQT3, TJbMUseOrder, TJbMUseOrder2, TJbMUseOrder3, TJbMProcessStatus, TJbMTSOBLn, TJbMDescription) VALUES ('JOB0000001', 1, 'P1001', 'หม้อหุงข้าว 1.8 ลิตร', 'ขาว', '1.8 L', 'RC-18', 150, 15, 0, 'PCS', 'BOX', NULL, 50, 5, 0, 100, 10, 0, 20, 2, 0, 1, 1, 'ล็อตแรกส่งแล้ว');
INSERT INTO QD8TJobSub (TJbMTJobNo, TJbMLn, TJbMTPdtCode, TJbMProductName, TJbMQuantity, TJbMTUntCode, TJbMTotalArrear, TJbMProcessStatus) VALUES ('JOB0000001', 2, 'P1002', 'หม้อหุงข้าวดิจิทัล 1.0 ลิตร', 40, 'PCS', 40, 0);
INSERT INTO QD8TJobSub (TJbMTJobNo, TJbMLn, TJbMTPdtCode, TJbMProductName, TJbMQuantity, TJbMTUntCode, TJbMTotalArrear, TJbMProcessStatus) VALUES ('JOB0000001', 3, 'P1101', 'ไมโครเวฟ 20 ลิตร', 10, 'PCS', 0, 3);
INSERT INTO QD8TJobSub (TJbMTJobNo, TJbMLn, TJbMTPdtCode, TJbMProductName, TJbMQuantity, TJbMTUntCode, TJbMTotalArrear, TJbMProcessStatus) VALUES ('JOB0000002', 1, 'P1101', 'Microwave Oven 20 L', 12, 'PCS', 12, 0);
INSERT INTO QD8TJobSub (TJbMTJobNo, TJbMLn, TJbMTPdtCode, TJbMProductName, TJbMQuantity, TJbMTUntCode, TJbMTotalArrear, TJbMProcessStatus) VALUES ('JOB0000003', 1, 'B1001', 'ปูนซีเมนต์ปอร์ตแลนด์ 50 กก.', 300, 'PCS', 300, 0);
INSERT INTO QD8TJobSub (TJbMTJobNo, TJbMLn, TJbMTPdtCode, TJbMProductName, TJbMQuantity, TJbMTUntCode, TJbMTotalArrear, TJbMProcessStatus) VALUES ('JOB0000004', 1, 'P2001', 'Wall Air Conditioner 12000 BTU', 4, 'PCS', 4, 0);
INSERT INTO QD8TJobSub (TJbMTJobNo, TJbMLn, TJbMTPdtCode, TJbMProductName, TJbMQuantity, TJbMTUntCode, TJbMTotalArrear, TJbMProcessStatus) VALUES ('JOB0000005', 1, 'P1001', 'หม้อหุงข้าว 1.8 ลิตร', 5, 'PCS', 5, 0);
INSERT INTO QD8TJobSub (TJbMTJobNo, TJbMLn, TJbMTPdtCode, TJbMProductName, TJbMQuantity, TJbMTUntCode, TJbMTotalArrear, TJbMProcessStatus) VALUES ('JOB0000006', 1, 'P1001', 'หม้อหุงข้าว 1.8 ลิตร', 2, 'PCS', 2, 2);
INSERT INTO QD8TJobSub (TJbMTJobNo, TJbMLn, TJbMTPdtCode, TJbMProductName, TJbMQuantity, TJbMTUntCode, TJbMTotalArrear, TJbMProcessStatus) VALUES ('JOB0000007', 1, 'P2002', 'Wall Air Conditioner 18000 BTU', 1, 'PCS', 1, 0);
INSERT INTO QD8TJobMethod (TJstTJbMTJobNo, TJstTJbMLn, TJStLn, TJStLevel, TJStTSpdStep, TJStTSepCode, TJStTPdtCode, TJStTQCSCode, TJStDescription, TJStFlag1) VALUES ('JOB0000001', 1, 1, 1, 1, 'ST10', 'P1001', 'QC-CUT', 'ตัดแผ่นหม้อใน', 1);
INSERT INTO QD8TJobMethod (TJstTJbMTJobNo, TJstTJbMLn, TJStLn, TJStLevel, TJStTSpdStep, TJStTSepCode, TJStTPdtCode, TJStTQCSCode, TJStDescription, TJStFlag1) VALUES ('JOB0000001', 1, 2, 1, 2, 'ST20', 'P1001', NULL, 'ประกอบ', 1);
INSERT INTO QD8TJobMethod (TJstTJbMTJobNo, TJstTJbMLn, TJStLn, TJStLevel, TJStTSpdStep, TJStTSepCode, TJStTPdtCode, TJStTQCSCode, TJStDescription, TJStFlag1) VALUES ('JOB0000001', 1, 3, 2, 3, 'ST30', 'P1001', NULL, 'ทดสอบ', 1);
INSERT INTO QD8TJobMethod (TJstTJbMTJobNo, TJstTJbMLn, TJStLn, TJStLevel, TJStTSpdStep, TJStTSepCode, TJStTPdtCode, TJStTQCSCode, TJStDescription, TJStFlag1) VALUES ('JOB0000001', 2, 1, 1, 1, 'ST20', 'P1002', NULL, 'ประกอบ', 1);
INSERT INTO QD8TJobMethod (TJstTJbMTJobNo, TJstTJbMLn, TJStLn, TJStLevel, TJStTSpdStep, TJStTSepCode, TJStTPdtCode, TJStTQCSCode, TJStDescription, TJStFlag1) VALUES ('JOB0000002', 1, 1, 1, 1, 'ST20', 'P1101', 'QC-MW', 'Assembly', 1);
INSERT INTO QD8TJobMethod (TJstTJbMTJobNo, TJstTJbMLn, TJStLn, TJStLevel, TJStTSpdStep, TJStTSepCode, TJStTPdtCode, TJStTQCSCode, TJStDescription, TJStFlag1) VALUES ('JOB0000002', 1, 2, 1, 2, 'ST30', 'P1101', NULL, 'Test', 1);
INSERT INTO QD8TJobProduction (TJPDNo, TJPDDate, TJPDDueDate, TJPDTJobNo, TJPDTJbMLn, TJPDTBraCode, TJPDProductCode, TJPDProductName, TJPDQuantityNet, TJPDQuantityNet2, TJPDQuantityNet3, TJPdUnitCals, TJPdUnitCals2, TJPdUnitCals3, TJPDDescription, TJPDCreateBy, TJPDCreateDate, TJPDConfirmStatus, TJPDConfirmDate, TJPDConfirmBy, TJPDApproveStatus, TJPDCancelStatus) VALUES ('PD0000001', CURRENT_DATE - 25, CURRENT_DATE + 10, 'JOB0000001', 1, 'HQ', 'P1001', 'หม้อหุงข้าว 1.8 ลิตร', 100, 10, 0, 'PCS', 'BOX', NULL, 'ผลิตล็อตที่ 2', 'JOHN', CURRENT_DATE - 25, 1, CURRENT_DATE - 24, 'JOHN', 1, 0);
INSERT INTO QD8TJobProduction (TJPDNo, TJPDDate, TJPDDueDate, TJPDTJobNo, TJPDTJbMLn, TJPDTBraCode, TJPDProductCode, TJPDProductName, TJPDQuantityNet, TJPdUnitCals, TJPDDescription, TJPDCreateBy, TJPDCreateDate, TJPDConfirmStatus, TJPDApproveStatus, TJPDCancelStatus) VALUES ('PD0000002', CURRENT_DATE - 5, CURRENT_DATE + 20, 'JOB0000002', 1, 'HQ', 'P1101', 'Microwave Oven 20 L', 12, 'PCS', 'Not confirmed yet', 'JOHN', CURRENT_DATE - 5, 0, 0, 0);
INSERT INTO QD8TJobProductionSub (TJpMTJPDNo, TJPMLn, TJPMTSepCode, TJPMTPdtCode, TJPMTQCSCode, TJPMRequest, TJPMRequest2, TJPMRequest3, TJPMTUntCode, TJPMTUntCode2, TJPMTUntCode3, TJPMFinishQT, TJPMFinishQT2, TJPMArrear, TJPMArrear2, TJPMProcessStatus, TJPMDescription) VALUES ('PD0000001', 1, 'ST10', 'P1001', 'QC-PD-CUT', 100, 10, 0, NULL, NULL, NULL, 60, 6, 40, 4, 1, 'ตัดแผ่น');
INSERT INTO QD8TJobProductionSub (TJpMTJPDNo, TJPMLn, TJPMTSepCode, TJPMTPdtCode, TJPMTQCSCode, TJPMRequest, TJPMTUntCode, TJPMFinishQT, TJPMArrear, TJPMProcessStatus, TJPMDescription) VALUES ('PD0000001', 2, 'ST20', 'P1001', NULL, 100, 'PCS', 0, 100, 1, 'ประกอบ');
INSERT INTO QD8TJobProductionSub (TJpMTJPDNo, TJPMLn, TJPMTSepCode, TJPMTPdtCode, TJPMTQCSCode, TJPMRequest, TJPMTUntCode, TJPMFinishQT, TJPMArrear, TJPMProcessStatus, TJPMDescription) VALUES ('PD0000001', 3, 'ST30', 'P1001', NULL, 100, 'PCS', 0, 100, 0, 'ยังไม่เริ่ม');
INSERT INTO QD8TJobProductionSub (TJpMTJPDNo, TJPMLn, TJPMTSepCode, TJPMTPdtCode, TJPMRequest, TJPMTUntCode, TJPMArrear, TJPMProcessStatus) VALUES ('PD0000002', 1, 'ST20', 'P1101', 12, 'PCS', 12, 1);
INSERT INTO QD8TJobProdMat (TMteTJPDNo, TMteLn, TMteTJPMLn, TMteProductCode, TMteProductName, TMteQuantity, TMteQuantity2, TMteQuantity3, TMteUntCode, TMteUntCode2, TMteUntCode3) VALUES ('PD0000001', 1, 1, 'M-STEEL', 'แผ่นสเตนเลส 0.5 มม.', 200, 2, 0, 'SHT', 'PACK', NULL);
INSERT INTO QD8TJobProdMat (TMteTJPDNo, TMteLn, TMteTJPMLn, TMteProductCode, TMteProductName, TMteQuantity, TMteUntCode) VALUES ('PD0000001', 2, 2, 'M-CORD', 'สายไฟพร้อมปลั๊ก', 100, 'PCS');
INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDDueDate, TPRDTPrjCode, TPRDTBraCode, TPRDTDivCode, TPRDTDepCode, TPRDTEmpCode, TPRDRefNo, TPRDDescription, TPRDCreateBy, TPRDCreateDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDApproveNote, TPRDCancelStatus) VALUES ('PR0000901', CURRENT_DATE - 24, CURRENT_DATE - 10, 'PJ01', 'HQ', 'D03', 'P31', 'E001', 'JC-001', 'วัตถุดิบสำหรับใบสั่งผลิต PD0000001', 'SOMCHAI', CURRENT_DATE - 24, 1, 1, '', 0);
INSERT INTO QD8TPRSub (TPRMTPRDNo, TPRMLn, TPRMProductCode, TPRMProductName, TPRMFactoryCode, TPRMCustom1, TPRMCustom2, TPRMCustom3, TPRMQuantity, TPRMQuantity2, TPRMQuantity3, TPRMTUntCode, TPRMTUntCode2, TPRMTUntCode3, TPRMTotalArrear, TPRMTotalArrear2, TPRMTotalArrear3, TPRMTJobNo, TPRMTJbMLn, TPRMDescription) VALUES ('PR0000901', 1, 'M-STEEL', 'แผ่นสเตนเลส 0.5 มม.', 'SS-05-1220', 'เงา', '1220x2440', NULL, 200, 2, 0, 'SHT', 'PACK', NULL, 80, 1, 0, 'JOB0000001', 1, 'ส่งเข้าคลัง A');
INSERT INTO QD8TInventory (TInvNo, TInvDate, TInvDueDate, TInvTCodAlias, TInvTBraCode, TInvRefNo, TInvTPrjCode, TInvTEmpCode, TInvDescription, TInvTJobNo, TInvTJbMLn, TInvTJstLn, TInvTJPDNo, TInvTJPMLn, TInvCreateBy, TInvCreateDate, TInvEditCode, TInvEditBy, TInvEditDate, TInvConfirmStatus, TInvConfirmDate, TInvConfirmBy, TInvApproveStatus, TInvApproveDate, TInvApproveBy, TInvApproveNote, TInvCancelStatus, TInvReviseStatus, TInvReviseBy) VALUES ('IS0000901', CURRENT_DATE - 2, CURRENT_DATE, 'ICISSUEJOB', 'HQ', 'PD0000001', 'PJ01', 'E004', 'เบิกแผ่นสเตนเลสเข้าขั้นตอนตัด', 'JOB0000001', 1, 1, 'PD0000001', 1, 'SOMCHAI', '2026-11-20 08:30:00', 'R1', 'JOHN', '2026-11-21 10:15:00', 1, '2026-11-21 11:00:00', 'JOHN', 2, '2026-11-21 14:30:00', 'SOMCHAI', 'ขอจำนวนใหม่', 0, 1, 'JOHN');
INSERT INTO QD8TRunningNumber (TRunKey, TRunSubKey, TRunLastNo) VALUES ('QD8TDocHistory', '', 10);
INSERT INTO QD8TDocHistory (TDcHID, TDcHTable, TDcHDocNo, TDcHAction, TDcHDate, TDcHBy, TDcHChanges, TDcHRemark) VALUES (1, 'QD8TInventory', 'IS0000901', 'Create', CURRENT_DATE - 2, 'SOMCHAI', '', '');
INSERT INTO QD8TDocHistory (TDcHID, TDcHTable, TDcHDocNo, TDcHAction, TDcHDate, TDcHBy, TDcHChanges, TDcHRemark) VALUES (2, 'QD8TInventory', 'IS0000901', 'Edit', CURRENT_DATE - 1, 'JOHN', 'TInvDescription: เบิกแผ่นสเตนเลส -> เบิกแผ่นสเตนเลสเข้าขั้นตอนตัด', '');
INSERT INTO QD8TDocHistory (TDcHID, TDcHTable, TDcHDocNo, TDcHAction, TDcHDate, TDcHBy, TDcHChanges, TDcHRemark) VALUES (3, 'QD8TInventory', 'IS0000901', 'Confirm', CURRENT_DATE - 1, 'JOHN', '', '');
INSERT INTO QD8TDocHistory (TDcHID, TDcHTable, TDcHDocNo, TDcHAction, TDcHDate, TDcHBy, TDcHChanges, TDcHRemark) VALUES (4, 'QD8TInventory', 'IS0000901', 'Memo', CURRENT_DATE - 1, 'SOMCHAI', '', 'ตรวจนับแผ่นสเตนเลสก่อนเบิกล็อตถัดไป');
INSERT INTO QD8TDocHistory (TDcHID, TDcHTable, TDcHDocNo, TDcHAction, TDcHDate, TDcHBy, TDcHChanges, TDcHRemark) VALUES (5, 'QD8TJob', 'JOB0000001', 'Memo', CURRENT_DATE - 3, 'JOHN', '', 'Customer asked for white colour only');
