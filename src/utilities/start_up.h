#pragma once

class Import;

/// Opens both databases with their record sets. On any failure it shows the critical message and ends the process.
void OpenDatabases();

/// The same, after putting back what an import that did not come to its end kept aside.
void OpenDatabasesAtStart();

/// The same, on a file that came from elsewhere: when every row can be read as well, the import is completed. False
/// when something failed and the process is to end; the next start puts the old file back then.
bool OpenImportedDatabases(Import& import);
