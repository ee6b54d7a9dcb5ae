// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormRSAAtaques.h"

#include "lessons/rsa/windows/FormRSAComun.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormRSAAtaques.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Why the own key cannot be attacked.
Pasos sinClave(bool comprobada)
{
    return Pasos(QList<Paso>{
        Paso{comprobada ? Traduce(u"Cada paquete ha de tener al menos un carácter."_s)
                        : Traduce(u"Su clave no está comprobada: termínela, o elija una de las "
                                  "publicadas."_s)}});
}

} // namespace

ClaveEnCifras enCifras(const ClsRSA &clave)
{
    return {clave.q(1), clave.q(2), clave.q(0), clave.FiQ(), clave.s(), clave.t(), clave.r()};
}

FormRSAAtaques::FormRSAAtaques(std::shared_ptr<const ClsRSA> clave, PanelDePasos *pasos,
                               QWidget *tema)
    : QWidget(tema),
      ui(std::make_unique<Ui::FormRSAAtaques>()),
      m_clave(std::move(clave)),
      m_pasos(pasos)
{
    ui->setupUi(this);
    traduceVentana(this);
    for (const QString &ataque :
         {Traduce(u"Tabla de los 256 paquetes"_s), Traduce(u"Factorizar q"_s),
          Traduce(u"Primos próximos (Fermat)"_s), Traduce(u"Raíz s-ésima (s pequeño)"_s),
          Traduce(u"φ(q) conocida"_s)})
        ui->cmbAtaque->addItem(ataque);
    ui->cmbVictima->addItem(Traduce(u"Mi clave"_s));
    for (const ClavePublicada &publicada : clavesPublicadas())
        ui->cmbVictima->addItem(Traduce(publicada.nombre));
    m_atacar = corridaDe(ui->cmdAtacar, u"RESOLVER"_s, Traduce(u"Detener el ataque"_s));
    conecta(ui->cmdAtacar, &QPushButton::clicked, this, &FormRSAAtaques::cmdAtacar_Click);
}

FormRSAAtaques::~FormRSAAtaques() = default;

void FormRSAAtaques::abandona()
{
    ++m_turno;
    if (m_atacar->enMarcha())
        m_atacar->detiene();
}

/// The key to attack; none while the own one is not valid, or encrypts nothing.
std::optional<ClaveEnCifras> FormRSAAtaques::elegida() const
{
    if (const int i = ui->cmbVictima->currentIndex(); i > 0)
        return clavesPublicadas()[i - 1].clave;
    if (!m_clave->ClaveOK() || m_clave->r() < 1)
        return {};
    return enCifras(*m_clave);
}

Tarea<> FormRSAAtaques::cmdAtacar_Click()
{
    if (m_atacar->enMarcha()) {
        m_atacar->detiene();
        co_return;
    }
    const int turno = ++m_turno;
    const Ataque ataque{ui->cmbAtaque->currentIndex()};
    const std::optional<ClaveEnCifras> clave = elegida();
    m_pasos->pideVerse();
    if (!clave) {
        m_pasos->pon(sinClave(m_clave->ClaveOK()));
        co_return;
    }
    const auto marcha = m_atacar->empieza(m_tareas.billete());
    const Billete billete = marcha.billete();
    const Victima victima = co_await intercepta(*clave, billete);
    const ResultadoDeAtaque resultado = co_await ataca(ataque, victima, billete);
    if (turno == m_turno)
        m_pasos->pon(resultado.pasos);
}
