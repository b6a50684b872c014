#pragma once
// CVector: the numerics library's vector of doubles. operator[] counts from 0,
// operator() from 1.

#include <cstddef>
#include <vector>

class CVector {
public:
    CVector() = default;
    explicit CVector(int n) : m_values(static_cast<std::size_t>(n > 0 ? n : 0), 0.0) {}
    CVector(int n, const double* values) : m_values(values, values + (n > 0 ? n : 0)) {}

    int GetDim() const { return static_cast<int>(m_values.size()); }
    void Resize(int n) { m_values.resize(static_cast<std::size_t>(n > 0 ? n : 0), 0.0); }

    double& operator[](int i) { return m_values[static_cast<std::size_t>(i)]; }
    double operator[](int i) const { return m_values[static_cast<std::size_t>(i)]; }
    double& operator()(int i) { return m_values[static_cast<std::size_t>(i - 1)]; }
    double operator()(int i) const { return m_values[static_cast<std::size_t>(i - 1)]; }

    const double* GetData() const { return m_values.data(); }

private:
    std::vector<double> m_values;
};
