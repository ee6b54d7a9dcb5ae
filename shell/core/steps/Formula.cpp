// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/Formula.h"

#include <array>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

using Nodo = NodoDeFormula;

/// Longer ones first: "<=" is not "<" and "=".
constexpr std::array<QStringView, 10> Relaciones = {u"==", u"!=", u"<=", u">=", u"!|",
                                                    u"=",  u"<",  u">",  u"~",  u"|"};

/// Recursive descent, a function a rule of the notation.
class Lector
{
public:
    explicit Lector(QStringView escrita) : m_escrita(escrita) {}

    Nodo todo()
    {
        Nodo raiz = relacion();
        QStringList signos;
        std::vector<Nodo> partes;
        partes.push_back(std::move(raiz));
        for (;;) {
            if (toma(u","))
                signos << u","_s;
            else if (toma(u"=>"))
                signos << u"=>"_s;
            else
                break;
            partes.push_back(relacion());
        }
        exige(m_aqui == m_escrita.size());
        if (partes.size() == 1)
            return std::move(partes.front());
        return {Nodo::Lista, {}, std::move(partes), signos};
    }

private:
    Nodo relacion()
    {
        std::vector<Nodo> partes;
        partes.push_back(suma());
        QStringList signos;
        for (QStringView signo = signoDeRelacion(); !signo.isEmpty(); signo = signoDeRelacion()) {
            signos << signo.toString();
            partes.push_back(suma());
        }
        const bool conModulo = toma(u"(mod ");
        if (conModulo) {
            partes.push_back(suma());
            exige(toma(u")"));
        }
        if (partes.size() == 1)
            return std::move(partes.front());
        return {Nodo::Relacion, {}, std::move(partes), signos, conModulo};
    }

    QStringView signoDeRelacion()
    {
        saltaBlancos();
        if (resto().startsWith(u"=>"))
            return {};
        for (const QStringView signo : Relaciones) {
            if (toma(signo))
                return signo;
        }
        return {};
    }

    Nodo suma()
    {
        Nodo izquierda = producto();
        for (;;) {
            if (toma(u"+"))
                izquierda = operacion(u"+"_s, std::move(izquierda), producto());
            else if (toma(u"-"))
                izquierda = operacion(u"-"_s, std::move(izquierda), producto());
            else
                return izquierda;
        }
    }

    Nodo producto()
    {
        Nodo izquierda = factor();
        for (;;) {
            if (toma(u"*"))
                izquierda = operacion(u"*"_s, std::move(izquierda), factor());
            else if (toma(u"mod "))
                izquierda = operacion(u"mod"_s, std::move(izquierda), factor());
            else if (toma(u"/"))
                izquierda = con(Nodo::Fraccion, {}, std::move(izquierda), factor());
            else
                return izquierda;
        }
    }

    Nodo factor()
    {
        if (!toma(u"-"))
            return potencia();
        Nodo opuesto{Nodo::Opuesto};
        opuesto.partes.push_back(factor());
        return opuesto;
    }

    Nodo potencia()
    {
        Nodo base = atomo();
        if (!toma(u"^"))
            return base;
        return con(Nodo::Potencia, {}, std::move(base), factor());
    }

    Nodo atomo()
    {
        saltaBlancos();
        exige(m_aqui < m_escrita.size());
        const QChar aqui = m_escrita[m_aqui];
        if (aqui.isDigit())
            return {Nodo::Numero, mientras([](QChar c) { return c.isDigit(); })};
        if (aqui.isLetter())
            return nombre();
        if (toma(u"..."))
            return {Nodo::Puntos};
        if (toma(u"\""))
            return palabra();
        if (toma(u"{")) {
            Nodo grupo = suma();
            exige(toma(u"}"));
            return grupo;
        }
        exige(toma(u"("));
        return argumentos(Nodo::Parentesis, {});
    }

    Nodo nombre()
    {
        Nodo nombre{Nodo::Nombre, mientras([](QChar c) { return c.isLetter(); })};
        if (tomaPegado(u'_'))
            nombre.partes.push_back(atomo());
        else if (tomaPegado(u'('))
            return argumentos(Nodo::Funcion, nombre.texto);
        return nombre;
    }

    Nodo palabra()
    {
        Nodo palabra{Nodo::Palabra, mientras([](QChar c) { return c != u'"'; })};
        exige(tomaPegado(u'"'));
        return palabra;
    }

    Nodo argumentos(Nodo::Clase clase, const QString &texto)
    {
        Nodo nodo{clase, texto};
        do
            nodo.partes.push_back(suma());
        while (toma(u";"));
        exige(toma(u")"));
        return nodo;
    }

    static Nodo con(Nodo::Clase clase, const QString &texto, Nodo &&a, Nodo &&b)
    {
        Nodo nodo{clase, texto};
        nodo.partes.push_back(std::move(a));
        nodo.partes.push_back(std::move(b));
        return nodo;
    }

    static Nodo operacion(const QString &signo, Nodo &&a, Nodo &&b)
    {
        return con(Nodo::Operacion, signo, std::move(a), std::move(b));
    }

    template <typename Condicion>
    QString mientras(Condicion condicion)
    {
        const qsizetype desde = m_aqui;
        while (m_aqui < m_escrita.size() && condicion(m_escrita[m_aqui]))
            ++m_aqui;
        return m_escrita.mid(desde, m_aqui - desde).toString();
    }

    QStringView resto() const { return m_escrita.mid(m_aqui); }

    void saltaBlancos()
    {
        while (m_aqui < m_escrita.size() && m_escrita[m_aqui].isSpace())
            ++m_aqui;
    }

    bool toma(QStringView signo)
    {
        saltaBlancos();
        if (!resto().startsWith(signo))
            return false;
        m_aqui += signo.size();
        return true;
    }

    /// Without a blank in front of it.
    bool tomaPegado(QChar signo)
    {
        const bool esta = resto().startsWith(signo);
        m_aqui += esta ? 1 : 0;
        return esta;
    }

    void exige(bool cumplido) const
    {
        if (!cumplido)
            throw std::invalid_argument(u"no formula from its character %1 on: %2"_s.arg(m_aqui)
                                            .arg(m_escrita)
                                            .toStdString());
    }

    QStringView m_escrita;
    qsizetype m_aqui = 0;
};

} // namespace

bool llevaParentesis(const NodoDeFormula &nodo, std::size_t i)
{
    const Nodo &parte = nodo.partes[i];
    if (nodo.clase == Nodo::Potencia)
        return i == 0 && parte.clase != Nodo::Numero && parte.clase != Nodo::Nombre &&
               parte.clase != Nodo::Parentesis && parte.clase != Nodo::Funcion;
    if (nodo.clase != Nodo::Operacion && nodo.clase != Nodo::Opuesto)
        return false;
    const bool suma =
        parte.clase == Nodo::Operacion && (parte.texto == u"+" || parte.texto == u"-");
    // Of products and remainders the left one comes first.
    const bool trasResto = i == 1 && parte.clase == Nodo::Operacion &&
                           ((nodo.texto == u"mod" && parte.texto == u"*") ||
                            (nodo.texto != u"+" && nodo.texto != u"-" && parte.texto == u"mod"));
    const bool enSuma = nodo.texto == u"+" || (nodo.texto == u"-" && i == 0);
    return (suma && !enSuma) || trasResto ||
           (parte.clase == Nodo::Opuesto && (i == 1 || nodo.clase == Nodo::Opuesto));
}

Formula::Formula(const QString &escrita) : m_escrita(escrita)
{
    if (!escrita.isEmpty()) {
        Lector lector(escrita);
        m_raiz = lector.todo();
    }
}
