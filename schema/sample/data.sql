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
-- does not see inventory cost.
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
-- a right that is no command: seeing inventory cost columns
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (0, 'ICINVENTORYCOST', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (1, 'ICINVENTORYCOST', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow, TURtAdd, TURtDelete, TURtUnPass, TURtCopy, TURtEdit, TURtCheck, TURtPass, TURtPrint) VALUES (2, 'ICINVENTORYCOST', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);

-- Commands each module shows. The retired ICCOUNT (399) is listed but
-- not in use, so the module list skips it.
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('GL', 101, 1);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('GL', 104, 2);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('GL', 103, 3);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AR', 202, 1);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AR', 203, 2);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('AR', 204, 3);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 302, 1);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 303, 2);
INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('IC', 399, 3);

-- Own command lists. The list of Somchai holds the trial balance he may not
-- use, which therefore does not show.
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (0, 102, 1);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (0, 201, 2);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, 101, 1);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, 202, 2);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, 104, 3);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (2, 202, 1);
INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (2, 304, 2);

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
