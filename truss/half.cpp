#include "truss/half.h"

namespace lignara {

std::array<TrussHalf, 2> HalvesOf(ActiveModel& m) {
  return {{{m.LEN_TL, m.LEN_CL, m.LEN_VL, m.LEN_DL,    m.AX_TL,     m.AX_CL, m.AX_VL,
            m.AX_DL,  m.SGN_TL, m.SGN_CL, m.SGN_VL,    m.SGN_DL,    m.TLH,   m.TLV,
            m.DLH,    m.DLV,    m.ARM_L,  m.FinkWebVL, m.FinkWebHL, m.PL,    m.NODE_RL},
           {m.LEN_TR, m.LEN_CR, m.LEN_VR, m.LEN_DR,    m.AX_TR,     m.AX_CR, m.AX_VR,
            m.AX_DR,  m.SGN_TR, m.SGN_CR, m.SGN_VR,    m.SGN_DR,    m.TRH,   m.TRV,
            m.DRH,    m.DRV,    m.ARM_R,  m.FinkWebVR, m.FinkWebHR, m.PR,    m.NODE_RR}}};
}

}  // namespace lignara
