#pragma once
// The message seam's strict mode for as long as the object lives: every box the code shows
// must have its answer queued (MensajeSeam::setNextAnswer) before it comes; a box that finds
// none fails the running test with its text, where a lenient test would have let it take its
// default button unseen.

class MensajesEstrictos {
public:
    MensajesEstrictos();
    ~MensajesEstrictos();
    MensajesEstrictos(const MensajesEstrictos&) = delete;
    MensajesEstrictos& operator=(const MensajesEstrictos&) = delete;
};
