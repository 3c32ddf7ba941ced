// foundation/MemoireTexteRiche_p.h
#pragma once

#include "foundation/RangTexteRiche_p.h"

#include <QObject>

#include <memory>

class PoliceTexteRiche;
class QFont;

/// Remembers the rows and the fonts that were last used, so that scrolling and repainting lay out
/// nothing twice. Nothing but the clock tells whether a row was remembered.
///
/// Holds nothing after the end of the application object, whose fonts it would outlive. Forgets all
/// when a font is added or removed; `QFont::insertSubstitution` tells nobody, so what it changes is
/// seen in new rows only. GUI thread only: nothing is locked.
class MemoireTexteRiche
{
public:
    static MemoireTexteRiche & Instance();

    std::shared_ptr<PoliceTexteRiche const> DonnePolice(QFont const & font);
    std::shared_ptr<RangTexteRiche const> DonneRang(RangTexteRiche::Demande demande,
                                                    QFont const & font);

private:
    struct Contenu;
    struct FinDeLaBibliotheque;

    MemoireTexteRiche() = default;
    Q_DISABLE_COPY_MOVE(MemoireTexteRiche)

    static void PriseFinApplication();
    bool Prepare();
    void Vide();

    Contenu * monContenu = nullptr; // null without an application to hear the end of
    QMetaObject::Connection maConnexion;
};
