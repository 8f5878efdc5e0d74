// Nothing but the precompiled header, which belongs to a target.
