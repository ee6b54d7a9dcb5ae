#include "lessons/rsa/windows/FormRSACorrida.h"

#include "shell/core/ModGlobal.h"
#include "shell/look/Imagenes.h"

#include <QIcon>
#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace {

/// For as long as it lives, a button looks as one that stops a run.
class AspectoDeParada
{
public:
    AspectoDeParada(QAbstractButton *boton, const QString &consejo)
        : m_boton(boton),
          m_icono(boton->icon()),
          m_texto(boton->text()),
          m_consejo(boton->toolTip())
    {
        boton->setIcon(ImgStop());
        boton->setText(Traduce(u"Detener"_s));
        boton->setToolTip(consejo);
    }
    ~AspectoDeParada()
    {
        m_boton->setIcon(m_icono);
        m_boton->setText(m_texto);
        m_boton->setToolTip(m_consejo);
    }
    AspectoDeParada(const AspectoDeParada &) = delete;
    AspectoDeParada &operator=(const AspectoDeParada &) = delete;

private:
    QAbstractButton *m_boton;
    QIcon m_icono;
    QString m_texto, m_consejo;
};

} // namespace

FormRSACorrida::FormRSACorrida(Corrida &corrida, std::function<void()> alCambiar)
    : m_corrida(corrida), m_alCambiar(std::move(alCambiar))
{
}

bool FormRSACorrida::atiende(const QAbstractButton *boton) const
{
    return m_parada == boton || !m_corrida.enCurso();
}

void FormRSACorrida::pulsa(const QAbstractButton *boton, const std::function<void()> &accion)
{
    if (m_parada == boton)
        m_corrida.detener();
    else if (!m_corrida.enCurso())
        accion();
}

void FormRSACorrida::corre(QAbstractButton *boton, const QString &consejo,
                           const std::function<void()> &accion)
{
    const auto alFinal = qScopeGuard([this] {
        m_parada = nullptr;
        m_alCambiar();
    });
    const Corrida::Tramo tramo(m_corrida);
    const AspectoDeParada aspecto(boton, consejo);
    m_parada = boton;
    m_corrida.permitir();
    m_alCambiar();
    accion();
}
