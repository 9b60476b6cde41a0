-- Sample company: command-centre database (QD8Center.dat).
-- The installation calls its invoices "invoice / tax invoice" in both languages.

INSERT INTO QD8TCommandCaption (TCCpTCmdAlias, TCCpName, TCCpName2, TCCpEditBy, TCCpEditDate, TCCpFlag1) VALUES ('ARINVOICE', 'ใบแจ้งหนี้/ใบกำกับภาษี', 'Invoice / Tax Invoice', 'ADMIN', '2026-01-05 09:00:00', 1);
