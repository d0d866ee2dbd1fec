#pragma once

#include <QCoreApplication>

#include <memory>

/// The toolkit's application object for a command line. It consumes the toolkit's own options ("-platform",
/// "-style" and so on) from `argv` and lowers `argc`; both must outlive it.
///
/// A command line without a word that begins with "-" has no such option, so it gets an application object
/// that loads no GUI library: that halves the time of a ticket, and a server needs none installed.
///
/// Null when the command line may carry an option and the module that makes the other kind is not installed:
/// where the options end and the files begin is then anybody's guess, and a wrong one would empty the job.
std::unique_ptr<QCoreApplication> newApplication(int &argc, char **argv);
