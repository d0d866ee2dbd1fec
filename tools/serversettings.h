#pragma once

#include <QString>

/// Which settings of the print server keep jobs over a crash, and whether they are set; lines for people.
/// `server` is a host's name, or the path of a socket of this machine; the files of another machine are not
/// read. `folder` has the server's files.
QString adviceOnServer(const QString &server, const QString &folder = QStringLiteral("/etc/cups"));
