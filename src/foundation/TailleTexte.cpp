// foundation/TailleTexte.cpp
#include "foundation/TailleTexte.h"

#include <QFontMetrics>

namespace RoutinesGeneralesQt {

QSize DonneTailleTexteBrut(QString const & texte, QFont const & police)
{
    QFontMetrics const mesures(police);
    return {mesures.horizontalAdvance(texte), mesures.height()};
}

} // namespace RoutinesGeneralesQt
