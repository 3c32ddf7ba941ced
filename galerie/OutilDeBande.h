// galerie/OutilDeBande.h
#pragma once

#include "lists/IWidgetChevronnable.h"

class QToolButton;

/// A tool of a band: the button of an action, or of an action with a menu, with or without its
/// text.
///
/// Under the chevron it is what it is in the row: an action, or a sub-menu.
class OutilDeBande : public IWidgetChevronnable
{
    Q_OBJECT

public:
    /// The action is not owned, and outlives the tool.
    explicit OutilDeBande(QAction & action, QWidget * parent = nullptr);

    /// Drops the text, or shows it again.
    void MetsCompact(bool compact);

    QMenu * DonneQMenu() override;
    QAction * DonneQAction() override;
    QString DonneTitre() override;
    /// With the text in both forms: the band tells by it whether there is room for the texts.
    QSize DonneTailleMin() override;
    bool EstUneAction() override;

protected Q_SLOTS:
    void PriseExecuteAction() override;

private:
    QToolButton * CreeBouton(Qt::ToolButtonStyle style);

    QAction & monAction;
    QToolButton * monBoutonAvecTexte = nullptr;
    QToolButton * monBoutonSansTexte = nullptr;
};
