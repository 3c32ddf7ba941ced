// galerie/CadrePage.h
#pragma once

#include "SaisiesPage.h"

#include <QPointer>
#include <QWidget>

class ThemeGalerie;

/// What a tab holds: a frame that stays, in whichever window, while the page in it is thrown away
/// and built again.
class CadrePage : public QWidget
{
    Q_OBJECT

public:
    /// For the page of that index, which must exist; `theme` must outlive the frame. `saisies` is
    /// what the page gets when it is built.
    CadrePage(int page, ThemeGalerie & theme, SaisiesPage saisies = {});
    ~CadrePage() override;

    int DonnePage() const { return maPage; }
    QString DonneTitre() const;

    /// Builds the page, with what was entered in the one before; nothing where there is one.
    void Construis();
    /// Throws the page away. What was entered stays.
    void Defais();
    SaisiesPage DonneSaisies() const;

    /// Gives the focus back to what had it last in the page, or to what is first in it.
    void ReprendsFocus();

private:
    void PriseFocusChangay(QWidget * ancien, QWidget * nouveau);

    int maPage;
    ThemeGalerie & monTheme;
    SaisiesPage mesSaisies; // of the page that is no more
    SaisiesPage mesDefauts; // of the page when it was new
    QPointer<QWidget> monWidget;
    // Qt forgets it when the frame goes to another window.
    QPointer<QWidget> monDernierFocus;
};
