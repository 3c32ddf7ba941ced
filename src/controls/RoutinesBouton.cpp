// controls/RoutinesBouton.cpp
#include "controls/RoutinesBouton_p.h"

#include "foundation/Layouts.h"

#include <QAbstractButton>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace {

/// A label that wraps only where it must. A plain one that may wrap asks for a block of its own
/// proportions, and would leave the room beside it to the stretch.
class LibelleDeBouton : public QLabel
{
public:
    using QLabel::QLabel;

    QSize sizeHint() const override
    {
        ensurePolished();
        QTextDocument document;
        document.setDocumentMargin(0);
        document.setDefaultFont(font());
        document.setHtml(text());
        int const bords = width() - contentsRect().width() + 2 * margin();
        int const largeur = static_cast<int>(std::ceil(document.idealWidth())) + bords;
        return {largeur, std::max(heightForWidth(largeur), 0)};
    }
};

} // namespace

QLabel * RoutinesBouton::Assemble(QWidget & controle, QAbstractButton & bouton,
                                  QString const & texte)
{
    auto * const libelle = new LibelleDeBouton(&controle);
    libelle->setTextFormat(Qt::RichText);
    libelle->setText(texte);
    libelle->setWordWrap(true);

    auto * const disposition = new QHBoxLayout(&controle);
    RoutinesGeneralesQt::EnleveMargesDuLayout(disposition);
    disposition->addWidget(&bouton);
    disposition->addWidget(libelle);
    disposition->addStretch(1);
    if (texte.isEmpty())
        libelle->hide();

    controle.setMouseTracking(true);
    controle.setFocusProxy(&bouton);
    controle.setFocusPolicy(bouton.focusPolicy()); // a click on the label gives the focus
    return libelle;
}

// Deliberate: any button and any place of the label count, also a link, which is not activated.
bool RoutinesBouton::EstBascule(QAbstractButton const & bouton, QLabel const & libelle,
                                QObject const * objet, QEvent const & evenement)
{
    return objet == &libelle && evenement.type() == QEvent::MouseButtonRelease &&
           bouton.isEnabled();
}
