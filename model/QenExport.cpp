#include "model/QenExport.h"

void qenxml::QENXML_CONTAINERS() {}

void qenxml::QENXML_STRINGS() {}
