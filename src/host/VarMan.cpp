#include "host/VarMan.h"

#include <muParser.h>

#include <cctype>
#include <cmath>
#include <cstring>
#include <memory>
#include <numbers>
#include <string>

namespace {

// A formula compiled once for a set of variable names: a caller that evaluates one formula at
// every point of a curve, each time with a fresh VarMan, compiles it once.
struct CompiledFormula {
    std::string text;
    std::vector<std::string> names;
    std::vector<double> values; // bound to the parser's variables; never resized
    mu::Parser parser;
};

thread_local std::unique_ptr<CompiledFormula> t_lastFormula;

bool Matches(const CompiledFormula& compiled, const std::string& text,
             const std::vector<Variable>& vars) {
    if (compiled.text != text || compiled.names.size() != vars.size()) {
        return false;
    }
    for (size_t i = 0; i < vars.size(); ++i) {
        if (compiled.names[i] != vars[i].GetName().GetString()) {
            return false;
        }
    }
    return true;
}

// What a formula computes. "DriftX = (A - B)" names its result: the name and its '=' are a
// label. Any other '=' that is not part of "==", "<=", ">=" or "!=" would assign to a
// variable (muParser's "=", "+=", ...), which changes a bound curve's value for the rest of
// the evaluation: such a formula is refused (empty answer).
std::string FormulaBody(const std::string& text) {
    size_t start = 0;
    while (start < text.size() &&
           (std::isalnum(static_cast<unsigned char>(text[start])) != 0 || text[start] == '_')) {
        ++start;
    }
    const bool labelled = start > 0 && std::isdigit(static_cast<unsigned char>(text[0])) == 0 &&
                          start + 1 < text.size() && text[start] == '=' && text[start + 1] != '=';
    const std::string body = labelled ? text.substr(start + 1) : text;
    for (size_t i = 0; i < body.size(); ++i) {
        if (body[i] != '=') {
            continue;
        }
        const char before = i > 0 ? body[i - 1] : '\0';
        const bool closes = before == '=' || before == '<' || before == '>' || before == '!';
        const bool opens = i + 1 < body.size() && body[i + 1] == '=';
        if (!closes && !opens) {
            return {};
        }
    }
    return body;
}

// Sets `parser` up for `text` with variable i bound to values[i]; false for a name given
// twice (muParser raises for a name it cannot hold).
bool Setup(mu::Parser& parser, const std::string& text, const std::vector<Variable>& vars,
           const std::vector<double*>& values) {
    // muParser's own constants stop at 12 decimals; engineers get the doubles nearest pi and e.
    parser.DefineConst("_pi", std::numbers::pi);
    parser.DefineConst("_e", std::numbers::e);
    for (size_t i = 0; i < vars.size(); ++i) {
        const std::string name = vars[i].GetName().GetString();
        for (size_t j = 0; j < i; ++j) {
            if (name == vars[j].GetName().GetString()) {
                return false;
            }
        }
        parser.DefineVar(name, values[i]);
    }
    const std::string body = FormulaBody(text);
    if (body.empty()) {
        return false;
    }
    parser.SetExpr(body);
    return true;
}

// Null when the names or the formula are not acceptable.
std::unique_ptr<CompiledFormula> Compile(const std::string& text,
                                         const std::vector<Variable>& vars) {
    auto compiled = std::make_unique<CompiledFormula>();
    compiled->text = text;
    compiled->values.resize(vars.size());
    std::vector<double*> values;
    for (size_t i = 0; i < vars.size(); ++i) {
        compiled->names.push_back(vars[i].GetName().GetString());
        values.push_back(&compiled->values[i]);
    }
    if (!Setup(compiled->parser, text, vars, values)) {
        return nullptr;
    }
    return compiled;
}

} // namespace

int VarMan::EvaluateRows(const char* formula, int rows, const std::vector<double*>& columns,
                         double* results) const {
    if (formula == nullptr || rows < 0 || columns.size() != m_vars.size()) {
        return 1;
    }
    // Without rows the formula is still checked, over one zero for each variable.
    std::vector<double> zeros(m_vars.size(), 0.0);
    std::vector<double*> values = columns;
    if (rows == 0) {
        for (size_t i = 0; i < zeros.size(); ++i) {
            values[i] = &zeros[i];
        }
    }
    try {
        mu::Parser parser;
        if (!Setup(parser, formula, m_vars, values)) {
            return 1;
        }
        // Parsing happens at the first evaluation; one row tells a formula of several results.
        parser.Eval();
        if (parser.GetNumResults() != 1) {
            return 1;
        }
        if (rows > 0) {
            parser.Eval(results, rows);
        }
    } catch (const mu::Parser::exception_type&) {
        return 1;
    }
    for (int r = 0; r < rows; ++r) {
        if (!std::isfinite(results[r])) {
            return 1;
        }
    }
    return 0;
}

void VarMan::AddVar(const char* name, double value, int unitKind) {
    m_vars.emplace_back(CString(name != nullptr ? name : ""), value, unitKind);
}

void VarMan::DeleteBlanks(char* text) {
    if (text == nullptr) {
        return;
    }
    char* out = text;
    for (const char* in = text; *in != '\0'; ++in) {
        if (*in != ' ' && *in != '\t' && *in != '\r' && *in != '\n') {
            *out++ = *in;
        }
    }
    *out = '\0';
}

int VarMan::expression(char** cursor, Variable* result) const {
    if (cursor == nullptr || *cursor == nullptr || result == nullptr) {
        return 1;
    }
    const std::string text(*cursor);
    try {
        if (!t_lastFormula || !Matches(*t_lastFormula, text, m_vars)) {
            t_lastFormula.reset();
            t_lastFormula = Compile(text, m_vars);
            if (!t_lastFormula) {
                return 1;
            }
        }
        CompiledFormula& compiled = *t_lastFormula;
        for (size_t i = 0; i < m_vars.size(); ++i) {
            compiled.values[i] = m_vars[i].GetAsDouble();
        }
        const double value = compiled.parser.Eval();
        if (compiled.parser.GetNumResults() != 1 || !std::isfinite(value)) {
            return 1;
        }
        *result = Variable(CString(), value, 0);
    } catch (const mu::Parser::exception_type&) {
        t_lastFormula.reset();
        return 1;
    }
    *cursor += text.size();
    return 0;
}
