// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/ModGlobal.h"
#include "shell/frame/FormLeccion.h"
#include "tests/shell/support/Entorno.h"

/// A lesson with one field, under whatever name. With text in it, it asks before it closes.
class FormPrueba : public FormLeccion
{
public:
    explicit FormPrueba(const QString &nombre)
        : FormLeccion(nombre + u".html"_s), m_campo(new QLineEdit(this))
    {
        setObjectName(u"Form"_s + nombre);
        setWindowTitle(nombre);
        agregaTema(u"Tema"_s, u"tema"_s, m_campo);
        for (const QString &otro : {u"Otro"_s, u"Último"_s})
            agregaTema(otro, otro.toLower(), new QLineEdit(this));
    }
    Tarea<bool> puedeCerrarse() override
    {
        if (m_campo->text().isEmpty())
            co_return true;
        co_return co_await interlocutor().preguntaSiNo(this, windowTitle(), {});
    }
    void guardaLoPendiente() override { Sesión().guarda(u"P"_s, windowTitle(), m_campo->text()); }

private:
    QLineEdit *m_campo;
};

/// Six of them, and a row whose lesson does not exist yet.
inline Contenido contenidoDePrueba()
{
    Contenido contenido;
    for (const QString &nombre : u"Cero Uno Dos Tres Cuatro Cinco"_s.split(u' '))
        contenido.lecciones << Leccion{
            .icono = u"PRIMOS"_s,
            .rotulo = nombre,
            .crea = [nombre](QWidget *) { return new FormPrueba(nombre); },
            .descripcion = u"Sobre la función de Euler."_s,
            .temas = {{.nombre = u"otro"_s, .clave = u"otro"_s, .rotulo = u"Otro"_s},
                      {.nombre = u"nunca"_s, .clave = u"nunca"_s, .rotulo = u"Nunca está"_s}}};
    contenido.lecciones << Leccion{u"RSA"_s, u"Futura"_s, {}};
    return contenido;
}
