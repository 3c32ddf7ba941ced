// tests/style/CaptureErreurs.h
#pragma once

#include <QString>

#include <iostream>
#include <sstream>

/// What goes to the standard error stream during its life is kept instead of being written.
class CaptureErreurs
{
public:
    CaptureErreurs()
        : monTampon(std::cerr.rdbuf(monFlux.rdbuf()))
    {
    }
    CaptureErreurs(CaptureErreurs const &) = delete;
    CaptureErreurs & operator=(CaptureErreurs const &) = delete;
    ~CaptureErreurs() { std::cerr.rdbuf(monTampon); }

    QString Texte() const { return QString::fromStdString(monFlux.str()); }
    void Oublie() { monFlux.str({}); }

private:
    std::ostringstream monFlux;
    std::streambuf * monTampon;
};
