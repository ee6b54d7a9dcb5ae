// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/Termino.h"

#include <QStringView>

using namespace Qt::Literals::StringLiterals;

namespace {

/// How strongly a sign binds its operands, from loose to tight.
enum Fuerza { Suma = 1, Producto, Signo, Elevado };

struct NoSeEntiende
{
};

/// Precedence climbing: `termino(f)` reads an operand and every sign behind it that binds at least
/// so strongly.
class Lector
{
public:
    explicit Lector(QStringView texto) : m_resto(texto) { saltaBlancos(); }

    Termino todo()
    {
        Termino entero = termino(Suma);
        exige(m_resto.isEmpty());
        return entero;
    }

private:
    Termino termino(int fuerza)
    {
        constexpr int muyHondo = 400;
        exige(++m_hondo < muyHondo);
        Termino izquierda = operando();
        for (;;) {
            if (toma(u'!')) {
                izquierda = con(Termino::Factorial, {}, std::move(izquierda));
                continue;
            }
            const QChar signo = signoPendiente();
            if (signo.isNull() || fuerzaDe(signo) < fuerza)
                break;
            izquierda = unido(signo, std::move(izquierda));
        }
        --m_hondo;
        return izquierda;
    }

    /// The sign at hand; that of a product may be left out beside brackets.
    QChar signoPendiente() const
    {
        if (m_resto.isEmpty())
            return {};
        const QChar aqui = m_resto.front();
        if (u"+-*/%^"_s.contains(aqui))
            return aqui;
        const bool abre = u"([{"_s.contains(aqui);
        const bool omitido = (m_trasCierre && (abre || aqui.isLetterOrNumber() || esComa(aqui))) ||
                             (m_trasNumero && abre);
        return omitido ? u'*' : QChar();
    }

    static int fuerzaDe(QChar signo)
    {
        if (signo == u'^')
            return Elevado;
        return signo == u'+' || signo == u'-' ? Suma : Producto;
    }

    Termino unido(QChar signo, Termino &&izquierda)
    {
        toma(signo); // none to take where it is left out
        const int fuerza = fuerzaDe(signo);
        // The same strength again for powers alone: they are read from right to left.
        Termino derecha = termino(fuerza == Elevado ? fuerza : fuerza + 1);
        Termino unidos = con(fuerza == Elevado ? Termino::Potencia : Termino::Operacion, signo,
                             std::move(izquierda));
        unidos.partes.push_back(std::move(derecha));
        return unidos;
    }

    Termino operando()
    {
        exige(!m_resto.isEmpty());
        const QChar aqui = m_resto.front();
        if (toma(u'+'))
            return termino(Signo);
        if (toma(u'-'))
            return con(Termino::Opuesto, {}, termino(Signo));
        if (aqui.isLetter())
            return llamada();
        if (u"([{"_s.contains(aqui)) {
            std::vector<Termino> dentro = entreParentesis();
            exige(dentro.size() == 1);
            return std::move(dentro.front());
        }
        return numero();
    }

    Termino numero()
    {
        QString texto = mientras([](QChar c) { return c.isDigit(); });
        if (!m_resto.isEmpty() && esComa(m_resto.front())) {
            m_resto = m_resto.sliced(1);
            const QString decimales = mientras([](QChar c) { return c.isDigit(); });
            exige(!decimales.isEmpty());
            texto += u'.' + decimales;
        }
        exige(!texto.isEmpty());
        saltaBlancos();
        m_trasNumero = true;
        return {Termino::Valor, texto};
    }

    Termino llamada()
    {
        Termino llamada{Termino::Llamada, mientras([](QChar c) { return c.isLetter(); })};
        saltaBlancos();
        llamada.partes = entreParentesis();
        return llamada;
    }

    std::vector<Termino> entreParentesis()
    {
        constexpr QStringView abren = u"([{";
        constexpr QStringView cierran = u")]}";
        exige(!m_resto.isEmpty() && abren.contains(m_resto.front()));
        const QChar cierra = cierran[abren.indexOf(m_resto.front())];
        toma(m_resto.front());
        std::vector<Termino> dentro;
        do
            dentro.push_back(termino(Suma));
        while (toma(u';'));
        exige(toma(cierra));
        m_trasCierre = true;
        return dentro;
    }

    static bool esComa(QChar c) { return c == u'.' || c == u','; }

    static Termino con(Termino::Clase clase, const QString &texto, Termino &&parte)
    {
        Termino nodo{clase, texto};
        nodo.partes.push_back(std::move(parte));
        return nodo;
    }

    template <typename Condicion>
    QString mientras(Condicion condicion)
    {
        qsizetype fin = 0;
        while (fin < m_resto.size() && condicion(m_resto[fin]))
            ++fin;
        const QString tomado = m_resto.first(fin).toString();
        m_resto = m_resto.sliced(fin);
        return tomado;
    }

    void saltaBlancos()
    {
        mientras([](QChar c) { return c.isSpace(); });
        m_trasCierre = m_trasNumero = false;
    }

    bool toma(QChar signo)
    {
        if (m_resto.isEmpty() || m_resto.front() != signo)
            return false;
        m_resto = m_resto.sliced(1);
        saltaBlancos();
        return true;
    }

    static void exige(bool cumplido)
    {
        if (!cumplido)
            throw NoSeEntiende();
    }

    QStringView m_resto;
    bool m_trasCierre = false; ///< what was read last is a closing bracket
    bool m_trasNumero = false; ///< or a number
    int m_hondo = 0;
};

} // namespace

std::optional<Termino> leeTermino(const QString &expresion)
{
    try {
        return Lector(expresion).todo();
    } catch (const NoSeEntiende &) {
        return {};
    }
}
