-- The call history of iOS 7 (_ClientVersion 13): one table of calls, and properties by key. No calls yet.

CREATE TABLE _SqliteDatabaseProperties (
  key TEXT,
  value TEXT,
  UNIQUE(key)
);

CREATE TABLE call (
  ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
  address TEXT,
  date INTEGER,
  duration INTEGER,
  flags INTEGER,
  id INTEGER,
  name TEXT,
  country_code TEXT,
  network_code TEXT,
  read INTEGER,
  assisted INTEGER,
  face_time_data BLOB,
  originalAddress TEXT,
  answered INTEGER DEFAULT '1'
);

CREATE INDEX date_index ON call(date);

-- The call timers, in seconds: each call counts in whole minutes, rounded up.
CREATE TRIGGER timer_last_trigger INSERT ON call WHEN (NEW.duration != 0)
BEGIN
  UPDATE _SqliteDatabaseProperties
     SET value = (((NEW.duration + 59) / 60) * 60)
   WHERE key = 'timer_last';
END;

CREATE TRIGGER timer_outgoing_trigger INSERT ON call WHEN (NEW.flags & (1 << 0) == 1)
BEGIN
  UPDATE _SqliteDatabaseProperties
     SET value = (((NEW.duration + 59) / 60) * 60)
               + (SELECT value FROM _SqliteDatabaseProperties WHERE key = 'timer_outgoing')
   WHERE key = 'timer_outgoing';
END;

CREATE TRIGGER timer_incoming_trigger INSERT ON call WHEN (NEW.flags & (1 << 0) == 0)
BEGIN
  UPDATE _SqliteDatabaseProperties
     SET value = (((NEW.duration + 59) / 60) * 60)
               + (SELECT value FROM _SqliteDatabaseProperties WHERE key = 'timer_incoming')
   WHERE key = 'timer_incoming';
END;

CREATE TRIGGER timer_all_trigger INSERT ON call WHEN (NEW.duration != 0)
BEGIN
  UPDATE _SqliteDatabaseProperties
     SET value = (((NEW.duration + 59) / 60) * 60)
               + (SELECT value FROM _SqliteDatabaseProperties WHERE key = 'timer_all')
   WHERE key = 'timer_all';
END;

CREATE TRIGGER timer_lifetime_trigger INSERT ON call WHEN (NEW.duration != 0)
BEGIN
  UPDATE _SqliteDatabaseProperties
     SET value = (((NEW.duration + 59) / 60) * 60)
               + (SELECT value FROM _SqliteDatabaseProperties WHERE key = 'timer_lifetime')
   WHERE key = 'timer_lifetime';
END;

-- The first rows.
INSERT INTO _SqliteDatabaseProperties (key, value) VALUES
  ('call_history_limit', '100'),
  ('timer_last', '0'),
  ('timer_outgoing', '0'),
  ('timer_incoming', '0'),
  ('timer_all', '0'),
  ('timer_lifetime', '0'),
  ('timer_last_reset', '0'),
  ('_ClientVersion', '13'),
  ('_UniqueIdentifier', '00000000-0000-0000-0000-000000000000');
