// The symbols of the formulas with their units: calculations in kp, t, at, m and cm, as the method
// has them; 10 N to a kp.
#pragma once

#include "calculo/rastro/mdFormulas.h"

namespace zorbin {

inline constexpr UnidadPaso kNumero{"", ""};
inline constexpr UnidadPaso kMetro{"m", "m"};
inline constexpr UnidadPaso kCm{"cm", "cm"};
inline constexpr UnidadPaso kMm{"mm", "mm"};
inline constexpr UnidadPaso kPresion{"at", "MPa", 0.1};
inline constexpr UnidadPaso kTension{"kp/cm²", "MPa", 0.1};
inline constexpr UnidadPaso kCargaArea{"t/m²", "kN/m²", 10.0};
inline constexpr UnidadPaso kPorMetro{"t/m", "kN/m", 10.0};
inline constexpr UnidadPaso kMomento{"m·t/m", "m·kN/m", 10.0};
inline constexpr UnidadPaso kPesoEspecifico{"t/m³", "kN/m³", 10.0};
inline constexpr UnidadPaso kArea{"cm²/m", "cm²/m"};
inline constexpr UnidadPaso kPorM{"1/m", "1/m"};
inline constexpr UnidadPaso kGrados{"°", "°"};
inline constexpr UnidadPaso kPorciento{"%", "%"};
inline constexpr UnidadPaso kCmCuarta{"cm⁴/m", "cm⁴/m"};
inline constexpr UnidadPaso kCm2Cm{"cm²/cm", "cm²/cm"};
inline constexpr UnidadPaso kCm3{"cm⁴/cm", "cm⁴/cm"};
inline constexpr UnidadPaso kMomentoKp{"kp·cm/m", "m·kN/m", 1e-4};
inline constexpr UnidadPaso kAxilKp{"kp/m", "kN/m", 0.01};
inline constexpr UnidadPaso kMomentoCm{"kp·cm/cm", "N·m/cm", 0.1};
inline constexpr UnidadPaso kAxilCm{"kp/cm", "N/cm", 10.0};
inline constexpr UnidadPaso kTensionCm{"kp/cm", "N/cm", 10.0};

// clang-format off
inline constexpr SimboloFormula kSimbolos[] = {
    {"s", "s", kNumero}, {"Ka", "K_a", kNumero}, {"lambda", "\\lambda", kNumero},
    {"mu", "\\mu", kNumero}, {"m", "m", kNumero}, {"Kmu", "{K\\mu'}", kNumero},
    {"Cz", "C_z", kNumero}, {"c", "c", kNumero}, {"x", "x", kNumero}, {"x0", "x_0", kNumero},
    {"y", "y", kNumero}, {"Ct", "C_t", kNumero}, {"Cn", "C_n", kNumero}, {"r", "r", kNumero},
    {"p", "p", kNumero}, {"Rs", "R_s", kNumero}, {"F", "F", kNumero}, {"I", "I", kNumero},
    {"w", "w", kNumero}, {"fc", "k_c", kNumero}, {"eps", "\\epsilon", kNumero},
    {"gb", "\\gamma_b", kNumero}, {"gf", "\\gamma_f", kNumero}, {"gy", "\\gamma_y", kNumero},
    {"K1", "K_1", kNumero}, {"K2", "K_2", kNumero}, {"ASC", "ASC", kNumero}, {"b0", "a_0", kNumero},
    {"b1", "a_1", kNumero}, {"rhoi", "\\rho_i", kNumero}, {"rhoe", "\\rho_e", kNumero},
    {"rho", "\\rho", kNumero}, {"Kf", "K_f", kNumero}, {"gfis", "\\gamma_{fis}", kNumero},
    {"rep", "\\rho_A", kNumero}, {"u", "u", kNumero}, {"ni", "n_i", kNumero}, {"n", "n", kNumero},
    {"n1", "n_1", kNumero}, {"n2", "n_2", kNumero}, {"nc", "n_c", kNumero},
    {"beta", "\\beta", kNumero}, {"Al", "A", kNumero}, {"Bl", "B", kNumero}, {"Cl", "C", kNumero},
    {"Ar", "A_r", kNumero}, {"Br", "B_r", kNumero}, {"Cr", "C_r", kNumero}, {"kl", "k", kNumero},
    {"Dl", "D", kNumero}, {"fic", "\\phi_c", kNumero}, {"fir", "\\phi_r", kNumero},
    {"ec", "\\epsilon_c", kNumero}, {"er", "\\epsilon_r", kNumero}, {"KPI", "K_{PI}", kNumero},
    {"KPE", "K_{PE}", kNumero}, {"KRI", "K_{RI}", kNumero}, {"KRE", "K_{RE}", kNumero},
    {"KAc", "K_{Ac}", kNumero}, {"G", "G", kNumero}, {"coep", "k_{nuc}", kNumero},
    {"Ki", "K", kNumero}, {"KMp", "K_{Mp}", kNumero}, {"KNp", "K_{Np}", kNumero},
    {"KNf", "K_{Nf}", kNumero}, {"KMtA", "K_{MtA}", kNumero}, {"KMtB", "K_{MtB}", kNumero},
    {"KNtA", "K_{NtA}", kNumero}, {"KNtB", "K_{NtB}", kNumero}, {"KMlA", "K_{MlA}", kNumero},
    {"KMlB", "K_{MlB}", kNumero}, {"KMlC", "K_{MlC}", kNumero}, {"KMlD", "K_{MlD}", kNumero},
    {"KNlA", "K_{NlA}", kNumero}, {"KNlB", "K_{NlB}", kNumero}, {"KNlC", "K_{NlC}", kNumero},
    {"KNlD", "K_{NlD}", kNumero}, {"KMvA", "K_{MvA}", kNumero}, {"KMvB", "K_{MvB}", kNumero},
    {"KNvA", "K_{NvA}", kNumero}, {"KNvB", "K_{NvB}", kNumero},
    {"H", "H", kMetro}, {"B", "B", kMetro}, {"hr", "h_r", kMetro}, {"hp", "h_p", kMetro},
    {"He", "H_e", kMetro}, {"De", "D_e", kMetro}, {"Di", "D_i", kMetro}, {"Dm", "D_m", kMetro},
    {"H1", "H_1", kMetro}, {"h1", "h_1", kMetro}, {"h0", "h_0", kMetro}, {"R", "R", kMetro},
    {"z", "z", kMetro}, {"e", "e", kMetro}, {"ri", "r_i", kMetro}, {"re", "r_e", kMetro},
    {"rc", "r", kMetro}, {"d", "d", kMetro}, {"ex", "e_0", kMetro},
    {"L", "L", kCm}, {"ecm", "e", kCm}, {"ricm", "r_i", kCm}, {"recm", "r_e", kCm},
    {"xh", "x", kCm}, {"zc", "z", kCm}, {"dc", "d", kCm}, {"Rr", "R_r", kCm}, {"Rint", "R_i", kCm},
    {"Rcam", "R_c", kCm}, {"Rn", "R_n", kCm}, {"tcc", "t_c", kCm}, {"da", "d_a", kCm},
    {"sno", "s_{no}", kCm}, {"yno", "y_{no}", kCm}, {"sro", "s_{ro}", kCm}, {"yi", "y_i", kCm},
    {"ye", "y_e", kCm}, {"yr", "y_r", kCm}, {"ym", "y_m", kCm}, {"h", "h", kCm}, {"en", "e", kCm},
    {"rco", "r_{co}", kCm}, {"rro", "r_{ro}", kCm}, {"Y", "Y", kCm},
    {"t", "t_{max}", kMm}, {"tc", "t_c", kMm}, {"D", "D", kMm}, {"da_mm", "d", kMm},
    {"ssep", "s", kMm},
    {"DP", "DP", kPresion}, {"MDP", "MDP", kPresion}, {"DPini", "DP_{ini}", kPresion},
    {"MDPini", "MDP_{ini}", kPresion}, {"STP", "STP", kPresion}, {"PP", "PP", kPresion},
    {"Phip", "P", kPresion}, {"PrimP", "P_{prim}", kPresion}, {"LimPI", "P_{PI}", kPresion},
    {"LimPE", "P_{PE}", kPresion}, {"LimRI", "P_{RI}", kPresion}, {"LimRE", "P_{RE}", kPresion},
    {"Plim", "P_{lim}", kPresion}, {"PPi", "PP_i", kPresion},
    {"fck", "f_{ck}", kTension}, {"fct", "f_{ct}", kTension}, {"fyk", "f_{yk}", kTension},
    {"fyd", "f_{yd}", kTension}, {"f0", "f_0", kTension}, {"sm", "\\sigma_m", kTension},
    {"sn", "\\sigma_n", kTension}, {"sx", "\\sigma", kTension}, {"sadm", "\\sigma_{adm}", kTension},
    {"fcad", "f_{cd}", kTension}, {"f", "f", kTension}, {"Ef", "E", kTension},
    {"ft", "f_{ct}", kTension}, {"Eco", "E_{co}", kTension}, {"Ecn", "E_{cn}", kTension},
    {"Ecr", "E_{cr}", kTension}, {"Ep", "E_p", kTension}, {"Es", "E_s", kTension},
    {"fcko", "f_{cko}", kTension}, {"sf", "\\sigma_f", kTension},
    {"del", "\\Delta\\sigma_{el}", kTension}, {"s1", "\\sigma_1", kTension},
    {"sii", "\\sigma_{ini,int}", kTension}, {"sie", "\\sigma_{ini,ext}", kTension},
    {"drb", "\\Delta\\sigma_{rb}", kTension}, {"s2", "\\sigma_2", kTension},
    {"spr", "\\sigma_p", kTension}, {"dfr", "\\Delta\\sigma_{fr}", kTension},
    {"pr", "p_r", kTension}, {"dre", "\\Delta\\sigma_{rel}", kTension},
    {"sres", "\\sigma_{res}", kTension}, {"sk", "\\sigma_k", kTension},
    {"sPI", "\\sigma_{PI}", kTension}, {"sPE", "\\sigma_{PE}", kTension},
    {"sRI", "\\sigma_{RI}", kTension}, {"sRE", "\\sigma_{RE}", kTension},
    {"oPI", "\\sigma_{PI}^{ov}", kTension}, {"oPE", "\\sigma_{PE}^{ov}", kTension},
    {"oRI", "\\sigma_{RI}^{ov}", kTension}, {"oRE", "\\sigma_{RE}^{ov}", kTension},
    {"oAc", "\\sigma_{Ac}^{ov}", kTension}, {"o1", "\\sigma_1^{ov}", kTension},
    {"o2", "\\sigma_2^{ov}", kTension}, {"o3", "\\sigma_3^{ov}", kTension},
    {"oM", "\\sigma^{ov}", kTension}, {"sL", "\\sigma_L", kTension}, {"fctr", "f_{ctr}", kTension},
    {"pP", "\\sigma^{P}", kTension}, {"sB", "\\sigma", kTension}, {"sS", "\\sigma_s", kTension},
    {"sT", "\\sigma_{tot}", kTension}, {"sO", "\\sigma^{ov}", kTension},
    {"sMDP", "\\sigma_{MDP}", kTension}, {"sini", "\\sigma_{ini}", kTension},
    {"sch", "\\sigma_{ch}", kTension}, {"fyc", "f_{yk}", kTension},
    {"Q", "Q", kCargaArea}, {"QH", "Q_H", kCargaArea}, {"Qm", "Q_m", kCargaArea},
    {"Q0", "Q_0", kCargaArea}, {"Pc", "P_c", kCargaArea}, {"Wl", "W_l", kCargaArea},
    {"qz", "q_z", kPorMetro}, {"qH", "q_H", kPorMetro}, {"qt", "q_t", kPorMetro},
    {"qn", "q_n", kPorMetro}, {"qp", "q_p", kPorMetro}, {"q", "q", kPorMetro},
    {"qm", "q_m", kPorMetro}, {"qs", "q'", kPorMetro}, {"qHs", "{q_H'}", kPorMetro},
    {"Wp", "W_p", kPorMetro}, {"Wf", "W_f", kPorMetro}, {"Wt", "W_t", kPorMetro},
    {"Wq", "W_q", kPorMetro}, {"Wm", "W_m", kPorMetro}, {"N", "N", kPorMetro},
    {"Np", "N_{p}", kPorMetro}, {"Nf", "N_{f}", kPorMetro}, {"Nt", "N_{t}", kPorMetro},
    {"Nv", "N_{v}", kPorMetro}, {"Nm", "N_{m}", kPorMetro}, {"Nl1", "N_{l1}", kPorMetro},
    {"Nl0", "N_{l0}", kPorMetro}, {"N_1", "N_{(1)}", kPorMetro}, {"N_2", "N_{(2)}", kPorMetro},
    {"N_3", "N_{(3)}", kPorMetro}, {"N_4", "N_{(4)}", kPorMetro}, {"N_7", "N_{(7)}", kPorMetro},
    {"N_8", "N_{(8)}", kPorMetro}, {"N_9", "N_{(9)}", kPorMetro}, {"N_10", "N_{(10)}", kPorMetro},
    {"N_11", "N_{(11)}", kPorMetro}, {"Fan", "F", kPorMetro}, {"Fmin", "F_{min}", kPorMetro},
    {"Fmax", "F_{max}", kPorMetro},
    {"Mp", "M_{p}", kMomento}, {"Mf", "M_{f}", kMomento}, {"Mt", "M_{t}", kMomento},
    {"Mv", "M_{v}", kMomento}, {"Mm", "M_{m}", kMomento}, {"Ml1", "M_{l1}", kMomento},
    {"Ml0", "M_{l0}", kMomento}, {"M_1", "M_{(1)}", kMomento}, {"M_2", "M_{(2)}", kMomento},
    {"M_3", "M_{(3)}", kMomento}, {"M_4", "M_{(4)}", kMomento}, {"M_7", "M_{(7)}", kMomento},
    {"M_8", "M_{(8)}", kMomento}, {"M_9", "M_{(9)}", kMomento}, {"M_10", "M_{(10)}", kMomento},
    {"M_11", "M_{(11)}", kMomento}, {"M", "M", kMomento}, {"Mr", "M_r", kMomento},
    {"Mtope", "M_{tope}", kMomento}, {"kapM", "\\psi", kMomento},
    {"gr", "\\gamma_r", kPesoEspecifico}, {"gc", "\\gamma_c", kPesoEspecifico},
    {"AT", "A_T", kArea}, {"Ai", "A_i", kArea}, {"Ae", "A_e", kArea}, {"A0", "A_0", kArea},
    {"A", "A", kArea}, {"Amin", "A_{min}", kArea}, {"Anot", "A'", kArea},
    {"Aant", "{A^{(0)}}", kArea}, {"Acal", "A_{cal}", kArea}, {"Tt", "T", kArea},
    {"Afi", "A_{fi}", kArea}, {"Afe", "A_{fe}", kArea}, {"Tpos", "T_+", kArea},
    {"Tneg", "T_-", kArea}, {"Ach", "A_{ch}", kArea}, {"Ares", "A'", kArea}, {"Ab", "A_b", kArea},
    {"Ab8", "A_{8}", kArea}, {"Ab10", "A_{10}", kArea}, {"Ab12", "A_{12}", kArea},
    {"Rsum", "R", kArea}, {"Rin", "R_i", kArea}, {"Ren", "R_e", kArea}, {"Ri0", "R_{i,0}", kArea},
    {"Re0", "R_{e,0}", kArea}, {"dA", "\\Delta_A", kArea}, {"Ahor", "A", kArea},
    {"Atot", "A_{tot}", kArea}, {"Ah1", "A_{1}", kArea}, {"Ah2", "A_{2}", kArea},
    {"Ah3", "A_{3}", kArea}, {"Ah4", "A_{4}", kArea}, {"Ah5", "A_{5}", kArea},
    {"Aesp", "A_{esp}", kArea}, {"Aext", "A_{ext}", kArea}, {"A1", "A_1", kArea},
    {"A2", "A_2", kArea}, {"Anec", "A_{nec}", kArea}, {"Adis", "A_{disp}", kArea},
    {"nb", "n", kPorM}, {"Ne", "N_e", kPorM}, {"nb0", "n'", kPorM}, {"Nant", "N_{e,0}", kPorM},
    {"dN", "\\Delta_N", kPorM},
    {"phi", "\\phi", kGrados},
    {"Rel", "\\rho", kPorciento},
    {"Ih", "I", kCmCuarta},
    {"Asp", "A_{sp}", kCm2Cm},
    {"Io", "I_o", kCm3},
    {"Mk", "M", kMomentoKp},
    {"Nk", "N", kAxilKp},
    {"Mc", "M", kMomentoCm},
    {"Nc", "N", kAxilCm},
    {"X", "X", kTensionCm},
};
// clang-format on

}  // namespace zorbin
