#pragma once
// The expression library: named variables, each with a value and a unit kind, and formulas
// over them evaluated to one number.
//
// The grammar is muParser's: + - * / ^ with the usual precedence (^ from the right), unary
// minus, parentheses, the functions sin cos tan asin acos atan sinh cosh tanh asinh acosh
// atanh log2 log10 ln (and log, also natural) exp sqrt sign rint abs min max sum avg, the
// constants _pi and _e, comparisons, && || and the conditional "c ? a : b". Variable names are
// letters, digits and '_', not starting with a digit. Values are combined as plain numbers: the
// unit kinds travel with the variables for the caller's information and play no part in the
// arithmetic.

#include "platform/core/CString.h"

#include <vector>

class Variable {
public:
    Variable() = default;
    Variable(CString name, double value, int unitKind)
        : m_name(std::move(name)), m_value(value), m_unitKind(unitKind) {}

    double GetAsDouble() const { return m_value; }
    const CString& GetName() const { return m_name; }
    int GetUnitKind() const { return m_unitKind; }

private:
    CString m_name;
    double m_value = 0.0;
    int m_unitKind = 0;
};

class VarMan {
public:
    // Adds a variable; a name given twice makes every formula an error (which one was meant
    // cannot be told).
    void AddVar(const char* name, double value, int unitKind);
    int GetVarNum() const { return static_cast<int>(m_vars.size()); }

    // Removes every blank (space, tab, line end) of a formula text, in place.
    static void DeleteBlanks(char* text);

    // Evaluates the formula at *cursor over the variables into `result` (named "", unit kind
    // 0) and moves the cursor past the formula. Returns 0 on success; non-zero, with result
    // and cursor untouched, for a syntax error, an unknown or misnamed variable, a name
    // given twice, several results, or a result that is not a finite number.
    int expression(char** cursor, Variable* result) const;
    // The same formula for `rows` rows at once, with muParser's bulk evaluation: variable i, in
    // the order added, takes columns[i][r] in row r, and results[r] receives the value. The
    // same errors as expression, and non-zero when any row's value is not a finite number
    // (results are then unspecified). A formula that assigns to a variable writes into its
    // column, so the columns are the caller's scratch.
    int EvaluateRows(const char* formula, int rows, const std::vector<double*>& columns,
                     double* results) const;

private:
    std::vector<Variable> m_vars;
};
