#pragma once

#include <QString>

/// Which settings of the print server keep jobs over a crash, and whether they are set; lines for people.
QString adviceOnServer();
