#pragma once

#include <memory>
#include <pocketsphinx.h>
#include <sphinxbase/cmd_ln.h>
#include <sphinxbase/fsg_model.h>
#include <sphinxbase/jsgf.h>
#include <sphinxbase/logmath.h>
#include <sphinxbase/ngram_model.h>

/// @brief One owner per PocketSphinx and SphinxBase handle; each frees its handle once.
namespace sphinx {

struct DecoderFree {
    void operator()(ps_decoder_t *decoder) const { ps_free(decoder); }
};
struct ConfigFree {
    void operator()(cmd_ln_t *config) const { cmd_ln_free_r(config); }
};
struct NgramModelFree {
    void operator()(ngram_model_t *model) const { ngram_model_free(model); }
};
struct LogmathFree {
    void operator()(logmath_t *logmath) const { logmath_free(logmath); }
};

struct JsgfFree {
    void operator()(jsgf_t *grammar) const { jsgf_grammar_free(grammar); }
};
struct FsgModelFree {
    void operator()(fsg_model_t *model) const { fsg_model_free(model); }
};

using DecoderPtr = std::unique_ptr<ps_decoder_t, DecoderFree>;
using ConfigPtr = std::unique_ptr<cmd_ln_t, ConfigFree>;
using NgramModelPtr = std::unique_ptr<ngram_model_t, NgramModelFree>;
using LogmathPtr = std::unique_ptr<logmath_t, LogmathFree>;
using JsgfPtr = std::unique_ptr<jsgf_t, JsgfFree>;
/// A search keeps its own reference to the model it is given.
using FsgModelPtr = std::unique_ptr<fsg_model_t, FsgModelFree>;

} // namespace sphinx
