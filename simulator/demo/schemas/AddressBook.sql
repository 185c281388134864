-- The Contacts database of iOS 8 (_ClientVersion 56), as it is before the first contact is added.
--
-- guid columns take their default from ab_generate_guid(), a function that the connection has to register.
-- The full-text index over people is a virtual table with the system's own tokenizer, which no other connection
-- can open: of it only the five ordinary tables behind it are made.

CREATE TABLE _SqliteDatabaseProperties (key TEXT, value TEXT, UNIQUE(key));

CREATE TABLE ABStore (
  ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
  Name TEXT,
  ExternalIdentifier TEXT,
  Type INTEGER,
  ConstraintsPath TEXT,
  ExternalModificationTag TEXT,
  ExternalSyncTag TEXT,
  StoreInternalIdentifier TEXT,
  AccountID INTEGER DEFAULT -1,
  Enabled INTEGER DEFAULT 1,
  SyncData BLOB,
  MeIdentifier INTEGER DEFAULT -1,
  Capabilities INTEGER DEFAULT 0,
  UNIQUE(StoreInternalIdentifier)
);

CREATE TABLE ABPerson (
  ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
  First TEXT,
  Last TEXT,
  Middle TEXT,
  FirstPhonetic TEXT,
  MiddlePhonetic TEXT,
  LastPhonetic TEXT,
  Organization TEXT,
  Department TEXT,
  Note TEXT,
  Kind INTEGER,
  Birthday TEXT,
  JobTitle TEXT,
  Nickname TEXT,
  Prefix TEXT,
  Suffix TEXT,
  FirstSort TEXT,
  LastSort TEXT,
  CreationDate INTEGER,
  ModificationDate INTEGER,
  CompositeNameFallback TEXT,
  ExternalIdentifier TEXT,
  ExternalModificationTag TEXT,
  ExternalUUID TEXT,
  StoreID INTEGER,
  DisplayName TEXT,
  ExternalRepresentation BLOB,
  FirstSortSection TEXT,
  LastSortSection TEXT,
  FirstSortLanguageIndex INTEGER DEFAULT 2147483647,
  LastSortLanguageIndex INTEGER DEFAULT 2147483647,
  PersonLink INTEGER DEFAULT -1,
  ImageURI TEXT,
  IsPreferredName INTEGER DEFAULT 1,
  guid TEXT DEFAULT (ab_generate_guid()),
  PhonemeData TEXT,
  AlternateBirthday TEXT,
  MapsData TEXT,
  UNIQUE(guid)
);

CREATE TABLE ABPersonChanges (record INTEGER, type INTEGER, Image INTEGER, ExternalIdentifier TEXT, StoreID INTEGER);
CREATE TABLE ABPersonLink (
  ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
  PreferredImagePersonID INTEGER DEFAULT -1,
  PreferredNamePersonID INTEGER DEFAULT -1
);
CREATE TABLE ABPersonSearchKey (person_id INTEGER, SearchKey BLOB, NameOnlySearchKey BLOB, UNIQUE(person_id));
CREATE TABLE ABPersonBasicChanges (record INTEGER PRIMARY KEY, type INTEGER, sequenceNumber INTEGER);

CREATE TABLE ABGroup (
  ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
  Name TEXT,
  ExternalIdentifier TEXT,
  StoreID INTEGER,
  ExternalModificationTag TEXT,
  ExternalRepresentation BLOB,
  ExternalUUID TEXT
);
CREATE TABLE ABGroupChanges (record INTEGER, type INTEGER, ExternalIdentifier TEXT, StoreID INTEGER);
CREATE TABLE ABAccount (ROWID INTEGER PRIMARY KEY, AccountIdentifier TEXT, Flags INTEGER, DefaultSourceID INTEGER);
CREATE TABLE ABGroupMembers (
  UID INTEGER PRIMARY KEY,
  group_id INTEGER,
  member_type INTEGER,
  member_id INTEGER,
  UNIQUE(group_id, member_type, member_id)
);

CREATE TABLE ABMultiValue (
  UID INTEGER PRIMARY KEY,
  record_id INTEGER,
  property INTEGER,
  identifier INTEGER,
  label INTEGER,
  value TEXT,
  guid TEXT DEFAULT (ab_generate_guid()),
  UNIQUE(guid)
);
-- label in ABMultiValue and key in ABMultiValueEntry hold the implicit ROWID of these two tables.
CREATE TABLE ABMultiValueLabel (value TEXT, UNIQUE(value));
CREATE TABLE ABMultiValueEntry (parent_id INTEGER, key INTEGER, value TEXT, UNIQUE(parent_id, key));
CREATE TABLE ABMultiValueEntryKey (value TEXT, UNIQUE(value));
CREATE TABLE ABPhoneLastFour (multivalue_id INTEGER PRIMARY KEY, value TEXT);
CREATE TABLE ABPersonMultiValueDeletes (record_id INTEGER, property_id INTEGER, identifier INTEGER);

CREATE TABLE FirstSortSectionCount(LanguageIndex, Section TEXT, StoreID, number, UNIQUE(LanguageIndex, Section, StoreID));
CREATE TABLE LastSortSectionCount(LanguageIndex, Section TEXT, StoreID, number, UNIQUE(LanguageIndex, Section, StoreID));
CREATE TABLE FirstSortSectionCountTotal(LanguageIndex, Section TEXT, Type INT, number, UNIQUE(LanguageIndex, Section, Type));
CREATE TABLE LastSortSectionCountTotal(LanguageIndex, Section TEXT, Type INT, number, UNIQUE(LanguageIndex, Section, Type));

CREATE TABLE ABRecent(date INTEGER, name, property INTEGER, value);

CREATE INDEX ABFirstSortIndex ON ABPerson(FirstSortLanguageIndex, FirstSortSection, FirstSort);
CREATE INDEX ABLastSortIndex ON ABPerson(LastSortLanguageIndex, LastSortSection, LastSort);
CREATE INDEX ABFirstSortStoreIndex ON ABPerson(StoreID, FirstSortLanguageIndex, FirstSortSection, FirstSort);
CREATE INDEX ABLastSortStoreIndex ON ABPerson(StoreID, LastSortLanguageIndex, LastSortSection, LastSort);
CREATE INDEX ABPersonPersonLinkIndex ON ABPerson(PersonLink);
CREATE INDEX ABPreferredFirstSortIndex ON ABPerson(IsPreferredName, FirstSortLanguageIndex, FirstSortSection, FirstSort);
CREATE INDEX ABPreferredLastSortIndex ON ABPerson(IsPreferredName, LastSortLanguageIndex, LastSortSection, LastSort);
CREATE INDEX ABPersonExternalUUIDIndex ON ABPerson(ExternalUUID);
CREATE INDEX ABPersonExternalIdentifierIndex ON ABPerson(ExternalIdentifier);
CREATE INDEX ABMultiValueRecordIDIndex ON ABMultiValue(record_id);
CREATE INDEX ABMultiValueLabelIndex ON ABMultiValue(label);
CREATE INDEX ABMultiValuePropertyValueIndex ON ABMultiValue(property, value COLLATE NOCASE);
CREATE INDEX ABMultiValueEntryKeyIndex ON ABMultiValueEntry(key);
CREATE INDEX ABPhoneLastFourIndex ON ABPhoneLastFour(value);
CREATE INDEX ABRecent_value_index ON ABRecent(property, value);
CREATE INDEX ABRecent_date_index ON ABRecent(property, date);

-- Linked contacts: a link with fewer than two people goes away, and people follow their link.
CREATE TRIGGER DeletePersonLink AFTER DELETE ON ABPerson
BEGIN
  DELETE FROM ABPersonLink
   WHERE ROWID = OLD.PersonLink
     AND (SELECT count() FROM ABPerson WHERE PersonLink = OLD.PersonLink) < 2;
END;

CREATE TRIGGER UpdatePersonLink AFTER UPDATE OF PersonLink ON ABPerson
BEGIN
  DELETE FROM ABPersonLink
   WHERE ROWID = OLD.PersonLink
     AND (SELECT count() FROM ABPerson WHERE PersonLink = OLD.PersonLink) < 2;
END;

CREATE TRIGGER UpdatePersonLinkUponPersonUnlink AFTER UPDATE OF PersonLink ON ABPerson
WHEN OLD.PersonLink != -1 AND NEW.PersonLink = -1
BEGIN
  UPDATE ABPersonLink
     SET PreferredNamePersonID =
         (SELECT ROWID FROM ABPerson abp WHERE abp.PersonLink = OLD.PersonLink ORDER BY abp.ROWID LIMIT 1)
   WHERE ROWID = OLD.PersonLink AND PreferredNamePersonID = OLD.ROWID;
END;

CREATE TRIGGER UpdatePersonUponLinkDeletion AFTER DELETE ON ABPersonLink
BEGIN
  UPDATE ABPerson SET PersonLink = -1, IsPreferredName = 1 WHERE PersonLink = OLD.ROWID;
END;

CREATE TRIGGER UpdatePersonUponLinkInsertion AFTER INSERT ON ABPersonLink
BEGIN
  UPDATE ABPerson SET IsPreferredName = (ROWID = NEW.PreferredNamePersonID) WHERE PersonLink = NEW.ROWID;
END;

CREATE TRIGGER UpdatePersonUponLinkUpdate AFTER UPDATE ON ABPersonLink
BEGIN
  UPDATE ABPerson SET IsPreferredName = (ROWID = NEW.PreferredNamePersonID) WHERE PersonLink = NEW.ROWID;
END;

CREATE TRIGGER NamePreferredPersonEditTrigger
AFTER UPDATE OF Prefix, First, Middle, Last, Suffix, Organization, Kind ON ABPerson
WHEN OLD.Prefix IS NOT NEW.Prefix OR OLD.First IS NOT NEW.First OR OLD.Middle IS NOT NEW.Middle
  OR OLD.Last IS NOT NEW.Last OR OLD.Suffix IS NOT NEW.Suffix
  OR OLD.Organization IS NOT NEW.Organization OR OLD.Kind IS NOT NEW.Kind
BEGIN
  UPDATE ABPersonLink SET PreferredNamePersonID = OLD.ROWID WHERE ROWID = OLD.PersonLink;
END;

CREATE TRIGGER NamePreferredPersonInsertTrigger AFTER INSERT ON ABPerson
BEGIN
  UPDATE ABPersonLink SET PreferredNamePersonID = NEW.ROWID
   WHERE ROWID = NEW.PersonLink AND PreferredNamePersonID = -1;
END;

CREATE TRIGGER NamePreferredPersonDeleteTrigger AFTER DELETE ON ABPerson
BEGIN
  UPDATE ABPersonLink
     SET PreferredNamePersonID =
         (SELECT ROWID FROM ABPerson abp WHERE abp.PersonLink = OLD.PersonLink ORDER BY abp.ROWID LIMIT 1)
   WHERE ROWID = OLD.PersonLink AND PreferredNamePersonID = OLD.ROWID;
END;

CREATE TRIGGER UpdatePersonLinkField AFTER UPDATE OF PersonLink ON ABPerson
WHEN OLD.PersonLink != NEW.PersonLink
BEGIN
  UPDATE ABPerson
     SET IsPreferredName = (NEW.PersonLink = -1 OR ROWID =
         (SELECT PreferredNamePersonID FROM ABPersonLink abl WHERE abl.ROWID = NEW.PersonLink))
   WHERE ROWID = NEW.ROWID;
END;

CREATE TRIGGER InitializePersonLinkField AFTER INSERT ON ABPerson
BEGIN
  UPDATE ABPerson
     SET IsPreferredName = (NEW.PersonLink = -1 OR ROWID =
         (SELECT PreferredNamePersonID FROM ABPersonLink abl WHERE abl.ROWID = NEW.PersonLink))
   WHERE ROWID = NEW.ROWID;
END;

CREATE TRIGGER DeleteSearchKey AFTER DELETE ON ABPerson
BEGIN
  DELETE FROM ABPersonSearchKey WHERE person_id = OLD.ROWID;
END;

CREATE TRIGGER delete_phone_last_four AFTER DELETE ON ABMultiValue
BEGIN
  DELETE FROM ABPhoneLastFour WHERE multivalue_id = OLD.UID;
END;

-- How many people stand under each letter of the list, by store and in all.
CREATE TRIGGER FirstSortSectionInsert AFTER INSERT ON ABPerson
BEGIN
  INSERT OR REPLACE INTO FirstSortSectionCount VALUES (
    NEW.FirstSortLanguageIndex, IFNULL(NEW.FirstSortSection, ''), NEW.StoreID,
    1 + IFNULL((SELECT number FROM FirstSortSectionCount
      WHERE LanguageIndex = NEW.FirstSortLanguageIndex AND Section = IFNULL(NEW.FirstSortSection, '')
        AND StoreID = NEW.StoreID), 0));
END;

CREATE TRIGGER FirstSortSectionUpdate AFTER UPDATE ON ABPerson
BEGIN
  INSERT OR REPLACE INTO FirstSortSectionCount VALUES (
    OLD.FirstSortLanguageIndex, IFNULL(OLD.FirstSortSection, ''), OLD.StoreID,
    (SELECT number FROM FirstSortSectionCount
      WHERE LanguageIndex = OLD.FirstSortLanguageIndex AND Section = IFNULL(OLD.FirstSortSection, '')
        AND StoreID = OLD.StoreID) - 1);
  DELETE FROM FirstSortSectionCount
   WHERE LanguageIndex = OLD.FirstSortLanguageIndex AND Section = IFNULL(OLD.FirstSortSection, '')
     AND StoreID = OLD.StoreID AND number = 0;
  INSERT OR REPLACE INTO FirstSortSectionCount VALUES (
    NEW.FirstSortLanguageIndex, IFNULL(NEW.FirstSortSection, ''), NEW.StoreID,
    1 + IFNULL((SELECT number FROM FirstSortSectionCount
      WHERE LanguageIndex = NEW.FirstSortLanguageIndex AND Section = IFNULL(NEW.FirstSortSection, '')
        AND StoreID = NEW.StoreID), 0));
END;

CREATE TRIGGER FirstSortSectionDelete AFTER DELETE ON ABPerson
BEGIN
  INSERT OR REPLACE INTO FirstSortSectionCount VALUES (
    OLD.FirstSortLanguageIndex, IFNULL(OLD.FirstSortSection, ''), OLD.StoreID,
    (SELECT number FROM FirstSortSectionCount
      WHERE LanguageIndex = OLD.FirstSortLanguageIndex AND Section = IFNULL(OLD.FirstSortSection, '')
        AND StoreID = OLD.StoreID) - 1);
  DELETE FROM FirstSortSectionCount
   WHERE LanguageIndex = OLD.FirstSortLanguageIndex AND Section = IFNULL(OLD.FirstSortSection, '')
     AND StoreID = OLD.StoreID AND number = 0;
END;

CREATE TRIGGER LastSortSectionInsert AFTER INSERT ON ABPerson
BEGIN
  INSERT OR REPLACE INTO LastSortSectionCount VALUES (
    NEW.LastSortLanguageIndex, IFNULL(NEW.LastSortSection, ''), NEW.StoreID,
    1 + IFNULL((SELECT number FROM LastSortSectionCount
      WHERE LanguageIndex = NEW.LastSortLanguageIndex AND Section = IFNULL(NEW.LastSortSection, '')
        AND StoreID = NEW.StoreID), 0));
END;

CREATE TRIGGER LastSortSectionUpdate AFTER UPDATE ON ABPerson
BEGIN
  INSERT OR REPLACE INTO LastSortSectionCount VALUES (
    OLD.LastSortLanguageIndex, IFNULL(OLD.LastSortSection, ''), OLD.StoreID,
    (SELECT number FROM LastSortSectionCount
      WHERE LanguageIndex = OLD.LastSortLanguageIndex AND Section = IFNULL(OLD.LastSortSection, '')
        AND StoreID = OLD.StoreID) - 1);
  DELETE FROM LastSortSectionCount
   WHERE LanguageIndex = OLD.LastSortLanguageIndex AND Section = IFNULL(OLD.LastSortSection, '')
     AND StoreID = OLD.StoreID AND number = 0;
  INSERT OR REPLACE INTO LastSortSectionCount VALUES (
    NEW.LastSortLanguageIndex, IFNULL(NEW.LastSortSection, ''), NEW.StoreID,
    1 + IFNULL((SELECT number FROM LastSortSectionCount
      WHERE LanguageIndex = NEW.LastSortLanguageIndex AND Section = IFNULL(NEW.LastSortSection, '')
        AND StoreID = NEW.StoreID), 0));
END;

CREATE TRIGGER LastSortSectionDelete AFTER DELETE ON ABPerson
BEGIN
  INSERT OR REPLACE INTO LastSortSectionCount VALUES (
    OLD.LastSortLanguageIndex, IFNULL(OLD.LastSortSection, ''), OLD.StoreID,
    (SELECT number FROM LastSortSectionCount
      WHERE LanguageIndex = OLD.LastSortLanguageIndex AND Section = IFNULL(OLD.LastSortSection, '')
        AND StoreID = OLD.StoreID) - 1);
  DELETE FROM LastSortSectionCount
   WHERE LanguageIndex = OLD.LastSortLanguageIndex AND Section = IFNULL(OLD.LastSortSection, '')
     AND StoreID = OLD.StoreID AND number = 0;
END;

CREATE TRIGGER FirstSortSectionTotalDelete AFTER DELETE ON ABPerson
WHEN OLD.IsPreferredName = 1
BEGIN
  INSERT OR REPLACE INTO FirstSortSectionCountTotal VALUES (
    OLD.FirstSortLanguageIndex, IFNULL(OLD.FirstSortSection, ''), 0,
    (SELECT number FROM FirstSortSectionCountTotal
      WHERE LanguageIndex = OLD.FirstSortLanguageIndex AND Section = IFNULL(OLD.FirstSortSection, '')
        AND Type = 0) - 1);
  DELETE FROM FirstSortSectionCountTotal
   WHERE LanguageIndex = OLD.FirstSortLanguageIndex AND Section = IFNULL(OLD.FirstSortSection, '')
     AND Type = 0 AND number <= 0;
END;

CREATE TRIGGER LastSortSectionTotalDelete AFTER DELETE ON ABPerson
WHEN OLD.IsPreferredName = 1
BEGIN
  INSERT OR REPLACE INTO LastSortSectionCountTotal VALUES (
    OLD.LastSortLanguageIndex, IFNULL(OLD.LastSortSection, ''), 0,
    (SELECT number FROM LastSortSectionCountTotal
      WHERE LanguageIndex = OLD.LastSortLanguageIndex AND Section = IFNULL(OLD.LastSortSection, '')
        AND Type = 0) - 1);
  DELETE FROM LastSortSectionCountTotal
   WHERE LanguageIndex = OLD.LastSortLanguageIndex AND Section = IFNULL(OLD.LastSortSection, '')
     AND Type = 0 AND number <= 0;
END;

CREATE TRIGGER FirstSortSectionTotalInsert AFTER INSERT ON ABPerson
WHEN NEW.IsPreferredName = 1
BEGIN
  INSERT OR REPLACE INTO FirstSortSectionCountTotal VALUES (
    NEW.FirstSortLanguageIndex, IFNULL(NEW.FirstSortSection, ''), 0,
    1 + IFNULL((SELECT number FROM FirstSortSectionCountTotal
      WHERE LanguageIndex = NEW.FirstSortLanguageIndex AND Section = IFNULL(NEW.FirstSortSection, '')
        AND Type = 0), 0));
END;

CREATE TRIGGER LastSortSectionTotalInsert AFTER INSERT ON ABPerson
WHEN NEW.IsPreferredName = 1
BEGIN
  INSERT OR REPLACE INTO LastSortSectionCountTotal VALUES (
    NEW.LastSortLanguageIndex, IFNULL(NEW.LastSortSection, ''), 0,
    1 + IFNULL((SELECT number FROM LastSortSectionCountTotal
      WHERE LanguageIndex = NEW.LastSortLanguageIndex AND Section = IFNULL(NEW.LastSortSection, '')
        AND Type = 0), 0));
END;

CREATE TRIGGER FirstSortSectionTotalUpdateIfWasPreferred AFTER UPDATE ON ABPerson
WHEN OLD.IsPreferredName = 1
BEGIN
  INSERT OR REPLACE INTO FirstSortSectionCountTotal VALUES (
    OLD.FirstSortLanguageIndex, IFNULL(OLD.FirstSortSection, ''), 0,
    (SELECT number FROM FirstSortSectionCountTotal
      WHERE LanguageIndex = OLD.FirstSortLanguageIndex AND Section = IFNULL(OLD.FirstSortSection, '')
        AND Type = 0) - 1);
  DELETE FROM FirstSortSectionCountTotal
   WHERE LanguageIndex = OLD.FirstSortLanguageIndex AND Section = IFNULL(OLD.FirstSortSection, '')
     AND Type = 0 AND number = 0;
END;

CREATE TRIGGER FirstSortSectionTotalUpdateIfIsPreferred AFTER UPDATE ON ABPerson
WHEN NEW.IsPreferredName = 1
BEGIN
  INSERT OR REPLACE INTO FirstSortSectionCountTotal VALUES (
    NEW.FirstSortLanguageIndex, IFNULL(NEW.FirstSortSection, ''), 0,
    1 + IFNULL((SELECT number FROM FirstSortSectionCountTotal
      WHERE LanguageIndex = NEW.FirstSortLanguageIndex AND Section = IFNULL(NEW.FirstSortSection, '')
        AND Type = 0), 0));
END;

CREATE TRIGGER LastSortSectionTotalUpdateIfWasPreferred AFTER UPDATE ON ABPerson
WHEN OLD.IsPreferredName = 1
BEGIN
  INSERT OR REPLACE INTO LastSortSectionCountTotal VALUES (
    OLD.LastSortLanguageIndex, IFNULL(OLD.LastSortSection, ''), 0,
    (SELECT number FROM LastSortSectionCountTotal
      WHERE LanguageIndex = OLD.LastSortLanguageIndex AND Section = IFNULL(OLD.LastSortSection, '')
        AND Type = 0) - 1);
  DELETE FROM LastSortSectionCountTotal
   WHERE LanguageIndex = OLD.LastSortLanguageIndex AND Section = IFNULL(OLD.LastSortSection, '')
     AND Type = 0 AND number = 0;
END;

CREATE TRIGGER LastSortSectionTotalUpdateIfIsPreferred AFTER UPDATE ON ABPerson
WHEN NEW.IsPreferredName = 1
BEGIN
  INSERT OR REPLACE INTO LastSortSectionCountTotal VALUES (
    NEW.LastSortLanguageIndex, IFNULL(NEW.LastSortSection, ''), 0,
    1 + IFNULL((SELECT number FROM LastSortSectionCountTotal
      WHERE LanguageIndex = NEW.LastSortLanguageIndex AND Section = IFNULL(NEW.LastSortSection, '')
        AND Type = 0), 0));
END;

-- What lies behind the full-text index.
CREATE TABLE 'ABPersonFullTextSearch_content'(
  docid INTEGER PRIMARY KEY, 'c0First', 'c1Last', 'c2Middle', 'c3FirstPhonetic', 'c4MiddlePhonetic',
  'c5LastPhonetic', 'c6Organization', 'c7Department', 'c8Note', 'c9Birthday', 'c10JobTitle', 'c11Nickname',
  'c12Prefix', 'c13Suffix', 'c14DisplayName', 'c15Phone', 'c16Email', 'c17Address', 'c18SocialProfile',
  'c19URL', 'c20RelatedNames', 'c21IM', 'c22Date', 'c23SupplementalCompositeNameTerms'
);
CREATE TABLE 'ABPersonFullTextSearch_segments'(blockid INTEGER PRIMARY KEY, block BLOB);
CREATE TABLE 'ABPersonFullTextSearch_segdir'(
  level INTEGER, idx INTEGER, start_block INTEGER, leaves_end_block INTEGER, end_block INTEGER, root BLOB,
  PRIMARY KEY(level, idx)
);
CREATE TABLE 'ABPersonFullTextSearch_docsize'(docid INTEGER PRIMARY KEY, size BLOB);
CREATE TABLE 'ABPersonFullTextSearch_stat'(id INTEGER PRIMARY KEY, value BLOB);

-- The first rows. ABMultiValueLabel starts empty: a label is added when a contact first uses it, so its ROWID
-- differs from phone to phone.
INSERT INTO _SqliteDatabaseProperties (key, value) VALUES
  ('_ClientVersion', '56'),
  ('_UniqueIdentifier', '00000000-0000-0000-0000-000000000000'),
  ('PersonLinkerVersion', '9'),
  ('SortingCacheLanguage', 'en'),
  ('SortingCacheICUVersion', '889257984'),
  ('SortingCacheVersion', '30'),
  ('__CPRecordSequenceNumber', '2');
INSERT INTO ABStore (ROWID, Name, Type, StoreInternalIdentifier) VALUES (0, NULL, 0, 'local');
