-- QD8Center.dat: the command-centre database.
-- Its connection string is the application one with "QD8Command.dat" replaced
-- by "QD8Center.dat". Only the command caption function reads it.

-- Caption overrides: an installation renames a command here without touching
-- the shipped catalogue. A row in use (TCCpFlag1 = 1) replaces the catalogue's
-- TCmdName / TCmdName2 for the command TCCpTCmdAlias, one language column at a
-- time (an empty or Null column keeps the catalogue's text for that language).
CREATE TABLE QD8TCommandCaption (
    TCCpTCmdAlias VARCHAR(50) NOT NULL,
    TCCpName VARCHAR(200) COLLATE THAI,
    TCCpName2 VARCHAR(200) COLLATE THAI,
    TCCpEditBy VARCHAR(50),
    TCCpEditDate TIMESTAMP,
    TCCpFlag1 INTEGER DEFAULT 1,
    PRIMARY KEY (TCCpTCmdAlias)
);
