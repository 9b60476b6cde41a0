-- Sample company: command-centre database (QD8Center.dat).
-- The installation calls its invoices "invoice / tax invoice" in both languages,
-- its sales orders also bookings, and its vendors "ผู้ขาย" in Thai only (the
-- English caption stays the catalogue's). The renaming of the period closing was
-- withdrawn (not in use), so the catalogue's name shows again.

INSERT INTO QD8TCommandCaption (TCCpTCmdAlias, TCCpName, TCCpName2, TCCpEditBy, TCCpEditDate, TCCpFlag1) VALUES ('ARINVOICE', 'ใบแจ้งหนี้/ใบกำกับภาษี', 'Invoice / Tax Invoice', 'ADMIN', '2026-01-05 09:00:00', 1);
INSERT INTO QD8TCommandCaption (TCCpTCmdAlias, TCCpName, TCCpName2, TCCpEditBy, TCCpEditDate, TCCpFlag1) VALUES ('SOORDER', 'ใบสั่งขาย/ใบจอง', 'Sales Order / Booking', 'ADMIN', '2026-01-05 09:05:00', 1);
INSERT INTO QD8TCommandCaption (TCCpTCmdAlias, TCCpName, TCCpName2, TCCpEditBy, TCCpEditDate, TCCpFlag1) VALUES ('APVENDOR', 'ข้อมูลผู้ขาย', NULL, 'ADMIN', '2026-01-05 09:10:00', 1);
INSERT INTO QD8TCommandCaption (TCCpTCmdAlias, TCCpName, TCCpName2, TCCpEditBy, TCCpEditDate, TCCpFlag1) VALUES ('GLCLOSE', 'ปิดบัญชีสิ้นเดือน', 'Month-End Closing', 'ADMIN', '2026-01-06 10:00:00', 0);
