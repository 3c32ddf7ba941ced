// galerie/FenetreOnglets.h
#pragma once

#include <QWidget>

class OngletsGalerie;

/// A window of tabs that were torn off.
class FenetreOnglets : public QWidget
{
    Q_OBJECT

public:
    FenetreOnglets();

    OngletsGalerie & PreteOnglets() const { return *mesOnglets; }

    /// Named after the page on show, in the language of the application.
    void MetsTitre();

Q_SIGNALS:
    /// The user closed the window; its pages are still in it.
    void SignalFermay();

protected:
    void closeEvent(QCloseEvent * evenement) override;

private:
    OngletsGalerie * mesOnglets;
};
