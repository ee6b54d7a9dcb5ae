#pragma once

#include <QAbstractButton>
#include <QIcon>
#include <QPointer>

/// For as long as it lives, the button that started a run is the one that stops it: its picture,
/// its caption and its tooltip say so. Unlike the buttons of shell/BotonDeCalculo, which are at
/// rest again as soon as they have told the run to stop, this one stays until the run returns, and
/// then looks again as it did, whatever that was.
class BotonDeParada
{
public:
    BotonDeParada(QAbstractButton *boton, const QString &consejo);
    ~BotonDeParada();
    BotonDeParada(const BotonDeParada &) = delete;
    BotonDeParada &operator=(const BotonDeParada &) = delete;

private:
    QPointer<QAbstractButton> m_boton;
    QIcon m_icono;
    QString m_texto, m_consejo;
};
