// controls/DBoutonAbstrait.h
#pragma once

#include "noyau/UniChaine.h"

#include "FabrelGuiExport.h"

#include <QWidget>

/// What the library's check box and radio button have in common: a text and a checked state.
///
/// To the keyboard and to screen readers each of them is one control. Its accessible name is the
/// text without its mark-up, unless `setAccessibleName` gave another.
class FABRELGUI_EXPORT DBoutonAbstrait : public QWidget
{
    Q_OBJECT

public:
    explicit DBoutonAbstrait(QWidget * parent = nullptr);
    ~DBoutonAbstrait() override;

    /// As it was given, mark-up included.
    virtual UniChaine DonneTexte() const = 0;
    virtual bool EstCochay() const = 0;
    virtual void MetsCochay(bool cochay) = 0;

Q_SIGNALS:
    void SignalCochageChangay(bool cochay);
};
