// dialogs/DDialogueProgressionInfinie.h
#pragma once

#include "FabrelGuiExport.h"

#include <QDialog>

class DorvelWidgetCentrageNatif;
class QAbstractButton;
class QFrame;
class QLabel;
class QProgressBar;
class QTimer;

/// A small window that asks the user to wait: a text, a busy bar without end, a second text and a
/// row of optional buttons. It deletes itself when it closes and gives no answer.
class FABRELGUI_EXPORT DDialogueProgressionInfinie : public QDialog
{
    Q_OBJECT

public:
    DDialogueProgressionInfinie(QWidget * parent, QString texte, QString texteSecondaire,
                                QFlags<Qt::WindowType> flags);
    DDialogueProgressionInfinie(DorvelWidgetCentrageNatif * parent, QString texte,
                                QString texteSecondaire, QFlags<Qt::WindowType> flags);
    ~DDialogueProgressionInfinie() override;
};
