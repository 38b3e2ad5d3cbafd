#pragma once

/// Opens both databases with their record sets. On any failure it shows the critical message and ends the process.
void OpenDatabases();
