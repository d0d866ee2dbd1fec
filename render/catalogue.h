#pragma once

class PVConfiguration;
class QTranslator;

/// Loads the catalogue that the configuration names. A missing one is no fault: the labels then print as they
/// are written in the code. Whether there is one.
bool loadCatalogue(QTranslator &translator, const PVConfiguration &configuration);
