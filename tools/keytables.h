#pragma once

#include <QString>

/// The known keys as documents show them; a test holds the documents against these texts.

/// The tables of the chapter "Keys" in docs/configuration.md.
QString keysAsMarkdown();
/// The chapters of the settings in man/palvestrin.conf.5.
QString keysAsManual();
