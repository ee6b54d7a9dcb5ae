// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/Dibujante.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// resources/Bitmaps.cmake makes the bitmaps: NAME@PERCENT.png, of the drawing's own size times the
// percentage; those for a dark page end in "-oscura".

namespace {

struct Mapa
{
    QString ruta;
    int porcentaje;
};

/// The bitmaps of a drawing, from the smallest on. `base` is their path up to the "@".
QList<Mapa> mapasDe(const QString &base, bool oscura = false)
{
    const QFileInfo lugar(base);
    const QString cola = oscura ? u"-oscura.png"_s : u".png"_s;
    QList<Mapa> mapas;
    const auto nombres = lugar.dir().entryList({lugar.fileName() + u"@*"_s + cola}, QDir::Files);
    for (const QString &nombre : nombres) {
        const QString cifras = nombre.mid(lugar.fileName().size() + 1).chopped(cola.size());
        bool esNumero = false;
        if (const int porcentaje = cifras.toInt(&esNumero); esNumero)
            mapas.append({lugar.dir().filePath(nombre), porcentaje});
    }
    std::sort(mapas.begin(), mapas.end(),
              [](const Mapa &a, const Mapa &b) { return a.porcentaje < b.porcentaje; });
    return mapas;
}

/// The smallest that is not smaller than wanted, or else the largest there is.
const Mapa *mapaPara(const QList<Mapa> &mapas, double porcentaje)
{
    for (const Mapa &mapa : mapas)
        if (mapa.porcentaje >= porcentaje)
            return &mapa;
    return mapas.isEmpty() ? nullptr : &mapas.last();
}

QString recurso(const QString &nombre)
{
    return u":/imagenes/"_s + nombre;
}

} // namespace

QIcon Dibujante::icono(const QString &nombre)
{
    QIcon icono;
    for (const Mapa &mapa : mapasDe(recurso(nombre)))
        icono.addPixmap(QPixmap(mapa.ruta));
    return icono;
}

QImage Dibujante::imagen(const QString &nombre, int alto, qreal escala)
{
    const QList<Mapa> mapas = mapasDe(recurso(nombre));
    if (mapas.isEmpty())
        return {};
    const QSize menor = QImageReader(mapas.first().ruta).size();
    const double porcentaje = alto * escala / menor.height() * mapas.first().porcentaje;
    QImage imagen(mapaPara(mapas, porcentaje)->ruta);
    imagen = imagen.scaledToHeight(qRound(alto * escala), Qt::SmoothTransformation);
    imagen.setDevicePixelRatio(escala);
    return imagen;
}

QImage Dibujante::figura(const QString &ruta, qreal escala, bool oscura)
{
    const QFileInfo archivo(ruta);
    const QString base = archivo.dir().filePath(archivo.completeBaseName());
    const QList<Mapa> mapas = mapasDe(base, oscura);
    const Mapa *const mapa = mapaPara(mapas, 100 * escala);
    if (!mapa)
        return {};
    // The view scales it to the screen; its size in device-independent pixels is the drawing's own.
    QImage imagen(mapa->ruta);
    imagen.setDevicePixelRatio(mapa->porcentaje / 100.0);
    return imagen;
}
