#pragma once

#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_io_cfg/interface.h"

class PX_Plotter_Definition;

class PX_EXPORT PX_Std_Plotter_IO_Validator : public PX_Plotter_IO_Validator, public PX_Object {
public:
    // The definition owns the validator and outlives it.
    explicit PX_Std_Plotter_IO_Validator(PX_Plotter_Definition* plotter);

    void validate_portname_and_type(PX_Validation_Strategy::Enum strategy) override;
    void validate_protocol(PX_Validation_Strategy::Enum strategy) override;
    void validate_baud_rate(PX_Validation_Strategy::Enum strategy) override;
    void validate_handshake(PX_Validation_Strategy::Enum strategy) override;
    void validate_input_timeout(PX_Validation_Strategy::Enum strategy) override;
    void validate_output_timeout(PX_Validation_Strategy::Enum strategy) override;
    void validate_pathname(PX_Validation_Strategy::Enum strategy) override;

    void set_all_io_to_defaults() override;
    void set_portname_and_type_to_default() override;
    void set_protocol_to_default() override;
    void set_baud_rate_to_default() override;
    void set_handshake_to_default() override;
    void set_input_timeout_to_default() override;
    void set_output_timeout_to_default() override;
    void set_pathname_to_default() override;
    void set_all_system_ports_valid_to_default() override;

protected:
    void set_portname_and_type_to_nearest() override;
    void set_protocol_to_nearest() override;
    void set_baud_rate_to_nearest() override;
    void set_input_timeout_to_nearest() override;
    void set_output_timeout_to_nearest() override;

    PX_Plotter_Definition* m_plotter;

private:
    // Which of the two time-outs, and which operations replace it.
    struct Timeout;
    static const Timeout input_timeout;
    static const Timeout output_timeout;

    void validate(const Timeout& timeout, PX_Validation_Strategy::Enum strategy, const wchar_t* function);
    void set_to_default(const Timeout& timeout, const wchar_t* function);
    void set_to_nearest(const Timeout& timeout, const wchar_t* function);
};
