// navigation/ElementFilAriane.h
#pragma once

#include "FabrelGuiExport.h"

#include <QWidget>

class QLabel;
class QSvgWidget;

/// One marker of a breadcrumb: an icon and a text, whose look tells the state of a step.
///
/// The icons ":/Images/iconeAriane….svg" and the sheet's rules for the text's object names
/// are the application's; a missing icon stays empty.
class FABRELGUI_EXPORT ElementFilAriane : public QWidget
{
    Q_OBJECT

public:
    enum eEtat : int
    {
        kBienvenue = 0, ///< the welcome step
        kAVenir = 1,    ///< still to come
        kEnCours = 2,   ///< under way
        kFait = 3,      ///< done; tells itself from a step to come by the icon alone
    };

    /// A marker without text in the state `kAVenir`.
    explicit ElementFilAriane(QWidget * parent = nullptr);

    /// Shows the state. A value outside the enumeration only has the sheet applied again.
    void MetsEtat(ElementFilAriane::eEtat etat);
    void PrendChaine(QString texte);
    void MetsTailleIcone(QSize taille);
    void CacheIcone(bool cachay);

private:
    QSvgWidget * monIcone = nullptr;
    QLabel * monTexte = nullptr;
};
