// Includes the library by the name of its folder, too, and each header twice.

#include <qenxml/parser/QenXmlParser.h>

#include <qenxml/model/version.h>

#include "model/version.h"
#include "parser/QenXmlParser.h"

int main() {
    return QenXmlParser().getGrowers().empty() ? 0 : QENXML_VERSION_MAJOR;
}
