#include "host/VarMan.h"

#include <muParser.h>

#include <cmath>
#include <cstring>
#include <memory>
#include <numbers>
#include <string>

namespace {

// A formula compiled once for a set of variable names: curve mixing evaluates the same
// formula over the same names at every point of a curve, each time with a fresh VarMan.
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

// Null when the names or the formula are not acceptable.
std::unique_ptr<CompiledFormula> Compile(const std::string& text,
                                         const std::vector<Variable>& vars) {
    auto compiled = std::make_unique<CompiledFormula>();
    // muParser's own constants stop at 12 decimals; engineers get the doubles nearest pi and e.
    compiled->parser.DefineConst("_pi", std::numbers::pi);
    compiled->parser.DefineConst("_e", std::numbers::e);
    compiled->text = text;
    compiled->values.resize(vars.size());
    for (size_t i = 0; i < vars.size(); ++i) {
        const std::string name = vars[i].GetName().GetString();
        for (const std::string& earlier : compiled->names) {
            if (earlier == name) {
                return nullptr;
            }
        }
        compiled->names.push_back(name);
        compiled->parser.DefineVar(name, &compiled->values[i]);
    }
    compiled->parser.SetExpr(text);
    return compiled;
}

} // namespace

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
