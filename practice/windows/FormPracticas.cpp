// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/windows/FormPracticas.h"

#include "practice/windows/FormPracticasClase.h"
#include "practice/windows/FormPracticasHistoria.h"
#include "practice/windows/FormPracticasHojas.h"
#include "practice/windows/FormPracticasMapa.h"
#include "practice/windows/FormPracticasPracticar.h"
#include "shell/core/CarpetaDeDatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Imagenes.h"

#include <QScrollArea>
#include <QTabBar>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString ClaveGuardar = u"Practicas/Guardar"_s;
/// The days of the reviews that are left, for the welcome, which is not to open the database.
const QString ClaveRepasos = u"Practicas/Repasos"_s;

/// What does not fit is scrolled to.
QScrollArea *visorDe(FormPracticasPracticar &practicar)
{
    auto *visor = new QScrollArea(practicar.parentWidget());
    visor->setWidgetResizable(true);
    visor->setFrameShape(QFrame::NoFrame);
    visor->setFocusPolicy(Qt::NoFocus);
    visor->setWidget(&practicar);
    // Queued: only then has what was shown its place.
    QObject::connect(
        &practicar, &FormPracticasPracticar::aLaVista, visor,
        [visor](QWidget *parte) { visor->ensureWidgetVisible(parte); }, Qt::QueuedConnection);
    return visor;
}

} // namespace

FormPracticas::FormPracticas(QWidget *padre)
    : FormLeccion(u"Curso.html"_s, padre),
      m_cuaderno(carpetaDeDatos(), Sesión().recuerda(ClaveGuardar, true).toBool())
{
    setObjectName(u"FormPracticas"_s);
    setWindowTitle(Traduce(u"Prácticas"_s));
    setWindowIcon(Icono(u"COMPROBAR"_s));
    m_practicar = new FormPracticasPracticar(m_cuaderno, this);
    auto *mapa = new FormPracticasMapa(m_cuaderno, this);
    auto *historia = new FormPracticasHistoria(m_cuaderno, this);
    auto *hojas = new FormPracticasHojas(this);
    agregaTema(u"Practicar"_s, u"practicar"_s, visorDe(*m_practicar));
    agregaTema(u"Mapa"_s, u"mapa"_s, mapa);
    agregaTema(u"Historia"_s, u"historia"_s, historia);
    agregaTema(u"Hojas"_s, u"hojas"_s, hojas);
    agregaTema(u"Clase"_s, u"clase"_s, new FormPracticasClase(this));
    agregaIntroduccion(u"El curso"_s);
    connect(m_practicar, &FormPracticasPracticar::anotado, this, &FormPracticas::apuntaInvitacion);
    conecta(historia, &FormPracticasHistoria::cambiado, this, [this] {
        Sesión().anota(ClaveGuardar, m_cuaderno.quiereGuardar());
        apuntaInvitacion();
    });
    conecta(hojas, &FormPracticasHojas::hacer, this,
            [this](const EncargoDeHoja &encargo, int minutos) {
                abreTemaDeClave(u"practicar"_s);
                m_practicar->haceHoja(encargo, minutos);
            });
    conecta(mapa, &FormPracticasMapa::elegido, this,
            [this](const QString &clave) { practica(clave, 0); });
}

QString FormPracticas::practica(const QString &clave, int nivel)
{
    const auto eleccion = Eleccion::deClave(clave, nivel);
    if (!eleccion)
        return Traduce(u"No hay ejercicios de «%1»."_s).arg(clave);
    abreTemaDeClave(u"practicar"_s);
    m_practicar->practica(*eleccion);
    return {};
}

void FormPracticas::abreTemaDeClave(const QString &clave)
{
    auto *temas = findChild<QTabBar *>(u"tsTema"_s);
    for (int i = 0; i < temas->count(); ++i) {
        if (temas->tabData(i).toString() == clave)
            temas->setCurrentIndex(i);
    }
}

void FormPracticas::apuntaInvitacion() const
{
    QVariantList dias;
    for (const Dominio &dominio : m_cuaderno.dominios()) {
        if (dominio.repaso)
            dias << *dominio.repaso;
    }
    Sesión().anota(ClaveRepasos, dias);
}

QString FormPracticas::invitacion()
{
    const QVariant apuntados = Sesión().recuerda(ClaveRepasos);
    if (!apuntados.isValid())
        return {};
    const QVariantList dias = apuntados.toList();
    const auto pendientes = std::count_if(dias.begin(), dias.end(), [](const QVariant &dia) {
        return dia.toLongLong() <= Cuaderno::hoy();
    });
    if (pendientes == 0)
        return Traduce(u"Hoy no hay repasos pendientes: siga donde lo dejó."_s);
    return pendientes == 1 ? Traduce(u"Hoy toca un repaso."_s)
                           : Traduce(u"Hoy tocan %1 repasos."_s).arg(pendientes);
}
