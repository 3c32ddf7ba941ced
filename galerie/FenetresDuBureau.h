// galerie/FenetresDuBureau.h
#pragma once

#include "noyau/plateforme/TypesWin32.h"

#include <QList>
#include <QString>

/// One top-level window, as the library sees it.
struct FenetreDuBureau
{
    HWND poignee = nullptr;
    QString titre;
    QString classe;
    QString programme; ///< the name of its file; empty when it can't be told
    DWORD processus = 0;
    bool visible = false;
    bool iconique = false;
    bool translucide = false;
    bool outil = false;
    bool toujoursDevant = false;
    bool gelee = false; ///< asked of visible windows only
    bool estAvantPlan = false;
    bool estTexteur = false; ///< the text editor that the library would choose
    bool estNotre = false;
};

/// False where there are no windows of other programs to be seen.
bool BureauEstVisible();

/// The windows from the topmost to the lowest; those that are not shown only with `cachees`. Asks
/// each program whether it answers, and waits for that.
QList<FenetreDuBureau> ListeFenetresDuBureau(bool cachees);
