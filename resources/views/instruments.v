# The engine display of the demo profile; docs/view-file.md tells how such files are written.
#
# There are three layouts, each with a block of its own below: wide, tall for the map beside the
# panel, and low for the map below. Texts are large for their size, since panes are small as a rule.
#
# Variables are the profile's viewIds. Their values come in the unit system in use, so that every
# scale is there twice: UNIT 0 is metric, 1 imperial. VARIANT is the number of the aircraft variant:
# 1 standard, 2 tow, 3 trainer. Bands repeat the thresholds of the profile.

view size=700,456 tall=330,604 low=700,277 background=#0b0f14
colors steel=#8ea6bf cold=#3d6f9e green=#2f9e68 amber=#e59a1c red=#e0463c

# --- scales

scales name=RPM {
    scale if="VARIANT = 2" from=0 to=6000 step=1000 minor=5 divide=1000 round=10 unit=rpm
    band from=1200 to=5350 color=green
    band from=5350 to=5450 color=amber
    band from=5450 to=6000 color=red
    scale if="VARIANT != 2" from=0 to=6000 step=1000 minor=5 divide=1000 round=10 unit=rpm
    band from=1200 to=5250 color=green
    band from=5250 to=5450 color=amber
    band from=5450 to=6000 color=red
}
scales name=MANIFOLD {
    scale if="UNIT = 0" from=200 to=1100 step=100 minor=2 divide=100 unit=hPa
    scale if="UNIT = 1" from=5 to=33 step=5 minor=5 decimals=1 unit=inHg
}
scales name=OIL_TEMP {
    scale if="UNIT = 0 and VARIANT = 3" from=0 to=140 unit=°C
    band from=0 to=55 color=cold
    band from=55 to=108 color=green
    band from=108 to=124 color=amber
    band from=124 to=140 color=red
    scale if="UNIT = 0" from=0 to=140 unit=°C
    band from=0 to=55 color=cold
    band from=55 to=116 color=green
    band from=116 to=124 color=amber
    band from=124 to=140 color=red
    scale if="UNIT = 1 and VARIANT = 3" from=32 to=284 unit=°F
    band from=32 to=131 color=cold
    band from=131 to=226.4 color=green
    band from=226.4 to=255.2 color=amber
    band from=255.2 to=284 color=red
    scale if="UNIT = 1" from=32 to=284 unit=°F
    band from=32 to=131 color=cold
    band from=131 to=240.8 color=green
    band from=240.8 to=255.2 color=amber
    band from=255.2 to=284 color=red
}
scales name=OIL_PRESSURE {
    scale if="UNIT = 0" from=0 to=8 decimals=1 unit=bar
    band from=0 to=1.1 color=red
    band from=1.1 to=1.7 color=amber
    band from=1.7 to=6.2 color=green
    band from=6.2 to=8 color=amber
    scale if="UNIT = 1" from=0 to=116 unit=psi
    band from=0 to=16 color=red
    band from=16 to=24.7 color=amber
    band from=24.7 to=89.9 color=green
    band from=89.9 to=116 color=amber
}
scales name=COOLANT {
    scale if="UNIT = 0" from=0 to=140 unit=°C
    band from=0 to=60 color=cold
    band from=60 to=115 color=green
    band from=115 to=121 color=amber
    band from=121 to=140 color=red
    scale if="UNIT = 1" from=32 to=284 unit=°F
    band from=32 to=140 color=cold
    band from=140 to=239 color=green
    band from=239 to=249.8 color=amber
    band from=249.8 to=284 color=red
}
scales name=FUEL_PRESSURE {
    scale if="UNIT = 0" from=0 to=5 decimals=2 unit=bar
    scale if="UNIT = 1" from=0 to=72.5 decimals=1 unit=psi
}
scales name=HEAD {
    scale if="UNIT = 0" from=0 to=180 unit=°C
    band from=60 to=150 color=green
    band from=150 to=160 color=amber
    band from=160 to=180 color=red
    scale if="UNIT = 1" from=32 to=356 unit=°F
    band from=140 to=302 color=green
    band from=302 to=320 color=amber
    band from=320 to=356 color=red
}
scales name=EXHAUST {
    scale if="UNIT = 0" from=0 to=1000 round=5 unit=°C
    band from=400 to=860 color=green
    band from=860 to=900 color=amber
    band from=900 to=1000 color=red
    scale if="UNIT = 1" from=32 to=1832 round=5 unit=°F
    band from=752 to=1580 color=green
    band from=1580 to=1652 color=amber
    band from=1652 to=1832 color=red
}
scales name=FLOW {
    scale if="UNIT = 0" from=0 to=20 decimals=1 unit=l/h
    scale if="UNIT = 1" from=0 to=5.28 decimals=2 unit=gal/h
}
scales name=FUEL {
    scale if="UNIT = 0 and VARIANT = 2" from=0 to=90 decimals=1 unit=l
    band from=0 to=16 color=red
    band from=16 to=24 color=amber
    band from=24 to=90 color=green
    scale if="UNIT = 0" from=0 to=90 decimals=1 unit=l
    band from=0 to=12 color=red
    band from=12 to=18 color=amber
    band from=18 to=90 color=green
    scale if="UNIT = 1 and VARIANT = 2" from=0 to=23.78 decimals=1 unit=gal
    band from=0 to=4.23 color=red
    band from=4.23 to=6.34 color=amber
    band from=6.34 to=23.78 color=green
    scale if="UNIT = 1" from=0 to=23.78 decimals=1 unit=gal
    band from=0 to=3.17 color=red
    band from=3.17 to=4.76 color=amber
    band from=4.76 to=23.78 color=green
}
scales name=VOLTAGE {
    scale from=10 to=16 decimals=1 unit=V
    band from=10 to=11.8 color=red
    band from=11.8 to=12.1 color=amber
    band from=12.1 to=14.7 color=green
    band from=14.7 to=15.3 color=amber
    band from=15.3 to=16 color=red
}
scales name=PERCENT {
    scale from=0 to=100 unit=%
}

# --- wide

group if="TALL = 0 and LOW = 0" {
    line from=16,40 to=684,40
    line from=16,244 to=684,244
    line from=16,398 to=684,398
    # lanes and hours
    label at=16,25 size=13 color=muted text="LANE A"
    lamp var=LANE_MODE_A at=66,8 size=112,24 textsize=12.5 text="NO DATA" {
        case if="LANE_MODE_A = 2" text="IN CONTROL" color=green
        case if="LANE_MODE_A = 3" text="STANDBY"
        case if="LANE_MODE_A = 1" text="SELF TEST" color=cold
        case if="LANE_MODE_A = 6" text="OFF" color=amber
    }
    label at=196,25 size=13 color=muted text="LANE B"
    lamp var=LANE_MODE_B at=246,8 size=112,24 textsize=12.5 text="NO DATA" {
        case if="LANE_MODE_B = 2" text="IN CONTROL" color=green
        case if="LANE_MODE_B = 3" text="STANDBY"
        case if="LANE_MODE_B = 1" text="SELF TEST" color=cold
        case if="LANE_MODE_B = 6" text="OFF" color=amber
    }
    group at=376,8 if="VARIANT = 2 or VARIANT = 3" {
        lamp var=TOW_HOOK at=0,0 size=104,24 textsize=12.5 text="HOOK OPEN" {
            case if="TOW_HOOK = 1 and VARIANT = 2" text="ROPE" color=green
            case if="TOW_HOOK = 1 and VARIANT = 3" text="BANNER" color=green
        }
    }
    label at=552,26 size=13 color=muted text="HOURS"
    value var=RUNNING_TIME at=670,26 size=19 align=right {
        scale factor=0.000277777778 decimals=1 unit=h
        unit at=674,26 size=14
    }
    # dials
    group at=118,147 {
        gauge var=ENGINE_SPEED scales=RPM at=0,0 radius=98 width=5 color=steel fill=9 tick=7 ticktext=14 needle=73,100 needlewidth=5 {
            number at=0,9 size=36 align=center bold=yes
            unit at=0,29 size=14 align=center
        }
        label at=0,72 size=14 align=center text="ENGINE"
        label at=0,87 size=12 align=center color=muted text="rpm × 1000"
    }
    group at=338,147 {
        gauge var=MANIFOLD scales=MANIFOLD at=0,0 radius=98 width=5 color=steel fill=9 tick=7 ticktext=14 needle=73,100 needlewidth=5 {
            number at=0,9 size=36 align=center bold=yes
            unit at=0,29 size=14 align=center
        }
        label at=0,72 size=14 align=center text="MANIFOLD"
        label at=0,87 size=12 align=center color=muted text="hPa × 100" if="UNIT = 0"
    }
    # oil, coolant, fuel pressure
    group at=476,44 {
        label at=0,19 size=14 color=muted text="OIL TEMP"
        bar var=OIL_TEMP scales=OIL_TEMP color=steel at=0,25 size=208,9 ticks=none {
            number at=170,19 size=23 align=right bold=yes
            unit at=175,19 size=14
        }
    }
    group at=476,94 {
        label at=0,19 size=14 color=muted text="OIL PRESS"
        bar var=OIL_PRESSURE scales=OIL_PRESSURE color=steel at=0,25 size=208,9 ticks=none {
            number at=170,19 size=23 align=right bold=yes
            unit at=175,19 size=14
        }
    }
    group at=476,144 {
        label at=0,19 size=14 color=muted text="COOLANT"
        bar var=COOLANT_TEMP scales=COOLANT color=steel at=0,25 size=208,9 ticks=none {
            number at=170,19 size=23 align=right bold=yes
            unit at=175,19 size=14
        }
    }
    group at=476,194 {
        label at=0,19 size=14 color=muted text="FUEL PRESS"
        bar var=FUEL_PRESSURE scales=FUEL_PRESSURE color=steel at=0,25 size=208,9 ticks=none {
            number at=170,19 size=23 align=right bold=yes
            unit at=175,19 size=14
        }
    }
    # cylinder heads and exhaust
    group at=16,244 {
        label at=0,19 size=13 color=muted text="CYLINDER HEAD"
        label at=204,19 size=13 align=right color=muted text="°C" if="UNIT = 0"
        label at=204,19 size=13 align=right color=muted text="°F" if="UNIT = 1"
        bar var=HEAD_1 scales=HEAD direction=up ticks=after color=steel at=18,44 size=16,88 {
            number at=26,39 size=16 align=center bold=yes
        }
        label at=26,147 size=13 align=center color=muted text=1
        bar var=HEAD_2 scales=HEAD direction=up ticks=after color=steel at=68.5,44 size=16,88 {
            number at=76.5,39 size=16 align=center bold=yes
        }
        label at=76.5,147 size=13 align=center color=muted text=2
        bar var=HEAD_3 scales=HEAD direction=up ticks=after color=steel at=119,44 size=16,88 {
            number at=127,39 size=16 align=center bold=yes
        }
        label at=127,147 size=13 align=center color=muted text=3
        bar var=HEAD_4 scales=HEAD direction=up ticks=after color=steel at=169.5,44 size=16,88 {
            number at=177.5,39 size=16 align=center bold=yes
        }
        label at=177.5,147 size=13 align=center color=muted text=4
    }
    group at=240,244 {
        label at=0,19 size=13 color=muted text="EXHAUST"
        label at=204,19 size=13 align=right color=muted text="°C" if="UNIT = 0"
        label at=204,19 size=13 align=right color=muted text="°F" if="UNIT = 1"
        bar var=EXHAUST_1 scales=EXHAUST direction=up ticks=after color=steel at=18,44 size=16,88 {
            number at=26,39 size=16 align=center bold=yes
        }
        label at=26,147 size=13 align=center color=muted text=1
        bar var=EXHAUST_2 scales=EXHAUST direction=up ticks=after color=steel at=68.5,44 size=16,88 {
            number at=76.5,39 size=16 align=center bold=yes
        }
        label at=76.5,147 size=13 align=center color=muted text=2
        bar var=EXHAUST_3 scales=EXHAUST direction=up ticks=after color=steel at=119,44 size=16,88 {
            number at=127,39 size=16 align=center bold=yes
        }
        label at=127,147 size=13 align=center color=muted text=3
        bar var=EXHAUST_4 scales=EXHAUST direction=up ticks=after color=steel at=169.5,44 size=16,88 {
            number at=177.5,39 size=16 align=center bold=yes
        }
        label at=177.5,147 size=13 align=center color=muted text=4
    }
    # throttle, fuel, voltage
    group at=476,246 {
        label at=0,14 size=13 color=muted text="THROTTLE"
        bar var=THROTTLE scales=PERCENT color=steel at=0,18 size=208,4 ticks=none {
            number at=170,14 size=17 align=right bold=yes
            unit at=175,14 size=13
        }
    }
    group at=476,275 {
        label at=0,14 size=13 color=muted text="FLOW LANE A"
        bar var=FUEL_FLOW_A scales=FLOW color=steel at=0,18 size=208,4 ticks=none {
            number at=170,14 size=17 align=right bold=yes
            unit at=175,14 size=13
        }
    }
    group at=476,304 {
        label at=0,14 size=13 color=muted text="FLOW LANE B"
        bar var=FUEL_FLOW_B scales=FLOW color=steel at=0,18 size=208,4 ticks=none {
            number at=170,14 size=17 align=right bold=yes
            unit at=175,14 size=13
        }
    }
    group at=476,334 {
        label at=0,14 size=13 color=muted text="FUEL"
        bar var=FUEL_LEVEL scales=FUEL color=steel at=0,18 size=208,4 ticks=none {
            number at=170,14 size=17 align=right bold=yes
            unit at=175,14 size=13
        }
    }
    group at=476,365 {
        label at=0,14 size=13 color=muted text="BUS"
        bar var=BUS_VOLTAGE scales=VOLTAGE color=steel at=0,18 size=208,4 ticks=none {
            number at=170,14 size=17 align=right bold=yes
            unit at=175,14 size=13
        }
    }
    # warnings: bands that values are in, and the lamps of the cockpit
    label at=16,418 size=12 color=muted text="LIMITS"
    lamp var=ENGINE_SPEED at=66,402 size=73.6,23 textsize=12 text="RPM"
    lamp var=OIL_PRESSURE at=143.6,402 size=73.6,23 textsize=12 text="OIL PRESS"
    lamp var=OIL_TEMP at=221.2,402 size=73.6,23 textsize=12 text="OIL TEMP"
    lamp var=COOLANT_TEMP at=298.8,402 size=73.6,23 textsize=12 text="COOLANT"
    lamp at=376.4,402 size=73.6,23 textsize=12 text="CYL HEAD" {
        case if="HEAD_1_STATE = 2 or HEAD_2_STATE = 2 or HEAD_3_STATE = 2 or HEAD_4_STATE = 2" color=limit
        case if="HEAD_1_STATE = 1 or HEAD_2_STATE = 1 or HEAD_3_STATE = 1 or HEAD_4_STATE = 1" color=warning
    }
    lamp at=454,402 size=73.6,23 textsize=12 text="EXHAUST" {
        case if="EXHAUST_1_STATE = 2 or EXHAUST_2_STATE = 2 or EXHAUST_3_STATE = 2 or EXHAUST_4_STATE = 2" color=limit
        case if="EXHAUST_1_STATE = 1 or EXHAUST_2_STATE = 1 or EXHAUST_3_STATE = 1 or EXHAUST_4_STATE = 1" color=warning
    }
    lamp var=FUEL_LEVEL at=531.6,402 size=73.6,23 textsize=12 text="FUEL LOW"
    lamp var=BUS_VOLTAGE at=609.2,402 size=73.6,23 textsize=12 text="BUS VOLT"
    label at=16,444 size=12 color=muted text="LAMPS"
    lamp at=66,428 size=73.6,23 textsize=12 text="LANE A" {
        case if="LANE_LAMP_A = 2" color=limit
        case if="LANE_LAMP_A = 1" color=warning
    }
    lamp at=143.6,428 size=73.6,23 textsize=12 text="LANE B" {
        case if="LANE_LAMP_B = 2" color=limit
        case if="LANE_LAMP_B = 1" color=warning
    }
    lamp at=221.2,428 size=73.6,23 textsize=12 text="OIL" {
        case if="OIL_LAMP = 2" color=limit
        case if="OIL_LAMP = 1" color=warning
    }
    lamp at=298.8,428 size=73.6,23 textsize=12 text="POWER" {
        case if="POWER_LAMP = 2" color=limit
        case if="POWER_LAMP = 1" color=warning
    }
    lamp at=376.4,428 size=73.6,23 textsize=12 text="FUEL" {
        case if="FUEL_LAMP = 2" color=limit
        case if="FUEL_LAMP = 1" color=warning
    }
    label at=458,445 size=13 color=muted text="BATTERY"
    value var=BATTERY_CURRENT at=555,445 size=15 align=right {
        scale decimals=1 unit=A
        unit at=558,445 size=13
    }
    label at=584,445 size=13 color=muted text="OAT"
    value var=OUTSIDE_TEMP at=650,445 size=15 align=right {
        scale if="UNIT = 0" unit=°C
        scale if="UNIT = 1" unit=°F
        unit at=653,445 size=13
    }
}

# --- tall

group if="TALL = 1" {
    line from=12,57 to=318,57
    line from=12,209 to=318,209
    line from=12,326 to=318,326
    line from=12,520 to=318,520
    # lanes and hours
    label at=12,21 size=12 color=muted text="LANE A"
    lamp var=LANE_MODE_A at=56,6 size=102,21 textsize=11.5 text="NO DATA" {
        case if="LANE_MODE_A = 2" text="IN CONTROL" color=green
        case if="LANE_MODE_A = 3" text="STANDBY"
        case if="LANE_MODE_A = 1" text="SELF TEST" color=cold
        case if="LANE_MODE_A = 6" text="OFF" color=amber
    }
    label at=172,21 size=12 color=muted text="LANE B"
    lamp var=LANE_MODE_B at=216,6 size=102,21 textsize=11.5 text="NO DATA" {
        case if="LANE_MODE_B = 2" text="IN CONTROL" color=green
        case if="LANE_MODE_B = 3" text="STANDBY"
        case if="LANE_MODE_B = 1" text="SELF TEST" color=cold
        case if="LANE_MODE_B = 6" text="OFF" color=amber
    }
    group at=56,31 if="VARIANT = 2 or VARIANT = 3" {
        label at=-44,15 size=12 color=muted text="HOOK"
        lamp var=TOW_HOOK at=0,0 size=102,21 textsize=11.5 text="HOOK OPEN" {
            case if="TOW_HOOK = 1 and VARIANT = 2" text="ROPE" color=green
            case if="TOW_HOOK = 1 and VARIANT = 3" text="BANNER" color=green
        }
    }
    label at=172,47 size=12 color=muted text="HOURS"
    value var=RUNNING_TIME at=306,47 size=17 align=right {
        scale factor=0.000277777778 decimals=1 unit=h
        unit at=309,47 size=13
    }
    # dials
    group at=85,136 {
        gauge var=ENGINE_SPEED scales=RPM at=0,0 radius=73 width=4 color=steel fill=7 tick=5 ticktext=11.5 needle=52,74 needlewidth=4 {
            number at=0,6 size=25 align=center bold=yes
            unit at=0,20 size=12 align=center
        }
        label at=0,54 size=12.5 align=center text="ENGINE"
        label at=0,68 size=11.5 align=center color=muted text="rpm × 1000"
    }
    group at=245,136 {
        gauge var=MANIFOLD scales=MANIFOLD at=0,0 radius=73 width=4 color=steel fill=7 tick=5 ticktext=11.5 needle=52,74 needlewidth=4 {
            number at=0,6 size=25 align=center bold=yes
            unit at=0,20 size=12 align=center
        }
        label at=0,54 size=12.5 align=center text="MANIFOLD"
        label at=0,68 size=11.5 align=center color=muted text="hPa × 100" if="UNIT = 0"
    }
    # cylinder heads and exhaust
    group at=12,209 {
        label at=0,16 size=12 color=muted text="CYLINDER HEAD"
        label at=147,16 size=12 align=right color=muted text="°C" if="UNIT = 0"
        label at=147,16 size=12 align=right color=muted text="°F" if="UNIT = 1"
        bar var=HEAD_1 scales=HEAD direction=up ticks=after color=steel at=11,38 size=14,60 {
            number at=18,33 size=13 align=center bold=yes
        }
        label at=18,112 size=12 align=center color=muted text=1
        bar var=HEAD_2 scales=HEAD direction=up ticks=after color=steel at=47.5,38 size=14,60 {
            number at=54.5,33 size=13 align=center bold=yes
        }
        label at=54.5,112 size=12 align=center color=muted text=2
        bar var=HEAD_3 scales=HEAD direction=up ticks=after color=steel at=84,38 size=14,60 {
            number at=91,33 size=13 align=center bold=yes
        }
        label at=91,112 size=12 align=center color=muted text=3
        bar var=HEAD_4 scales=HEAD direction=up ticks=after color=steel at=120.5,38 size=14,60 {
            number at=127.5,33 size=13 align=center bold=yes
        }
        label at=127.5,112 size=12 align=center color=muted text=4
    }
    group at=171,209 {
        label at=0,16 size=12 color=muted text="EXHAUST"
        label at=147,16 size=12 align=right color=muted text="°C" if="UNIT = 0"
        label at=147,16 size=12 align=right color=muted text="°F" if="UNIT = 1"
        bar var=EXHAUST_1 scales=EXHAUST direction=up ticks=after color=steel at=11,38 size=14,60 {
            number at=18,33 size=13 align=center bold=yes
        }
        label at=18,112 size=12 align=center color=muted text=1
        bar var=EXHAUST_2 scales=EXHAUST direction=up ticks=after color=steel at=47.5,38 size=14,60 {
            number at=54.5,33 size=13 align=center bold=yes
        }
        label at=54.5,112 size=12 align=center color=muted text=2
        bar var=EXHAUST_3 scales=EXHAUST direction=up ticks=after color=steel at=84,38 size=14,60 {
            number at=91,33 size=13 align=center bold=yes
        }
        label at=91,112 size=12 align=center color=muted text=3
        bar var=EXHAUST_4 scales=EXHAUST direction=up ticks=after color=steel at=120.5,38 size=14,60 {
            number at=127.5,33 size=13 align=center bold=yes
        }
        label at=127.5,112 size=12 align=center color=muted text=4
    }
    # temperatures and pressures
    group at=12,327 {
        label at=0,17 size=12 color=muted text="OIL TEMP"
        bar var=OIL_TEMP scales=OIL_TEMP color=steel at=0,22 size=147,6 ticks=none {
            number at=113,17 size=18 align=right bold=yes
            unit at=117,17 size=12.5
        }
    }
    group at=12,366 {
        label at=0,17 size=12 color=muted text="OIL PRESS"
        bar var=OIL_PRESSURE scales=OIL_PRESSURE color=steel at=0,22 size=147,6 ticks=none {
            number at=113,17 size=18 align=right bold=yes
            unit at=117,17 size=12.5
        }
    }
    group at=12,405 {
        label at=0,17 size=12 color=muted text="COOLANT"
        bar var=COOLANT_TEMP scales=COOLANT color=steel at=0,22 size=147,6 ticks=none {
            number at=113,17 size=18 align=right bold=yes
            unit at=117,17 size=12.5
        }
    }
    group at=12,444 {
        label at=0,17 size=12 color=muted text="FUEL PRESS"
        bar var=FUEL_PRESSURE scales=FUEL_PRESSURE color=steel at=0,22 size=147,6 ticks=none {
            number at=113,17 size=18 align=right bold=yes
            unit at=117,17 size=12.5
        }
    }
    label at=12,498 size=12 color=muted text="BATTERY"
    value var=BATTERY_CURRENT at=125,498 size=14 align=right {
        scale decimals=1 unit=A
        unit at=129,498 size=12.5
    }
    label at=12,514 size=12 color=muted text="OAT"
    value var=OUTSIDE_TEMP at=125,514 size=14 align=right {
        scale if="UNIT = 0" unit=°C
        scale if="UNIT = 1" unit=°F
        unit at=129,514 size=12.5
    }
    # throttle, fuel, voltage
    group at=171,327 {
        label at=0,17 size=12 color=muted text="THROTTLE"
        bar var=THROTTLE scales=PERCENT color=steel at=0,22 size=147,6 ticks=none {
            number at=113,17 size=18 align=right bold=yes
            unit at=117,17 size=12.5
        }
    }
    group at=171,366 {
        label at=0,17 size=12 color=muted text="FLOW A"
        bar var=FUEL_FLOW_A scales=FLOW color=steel at=0,22 size=147,6 ticks=none {
            number at=113,17 size=18 align=right bold=yes
            unit at=117,17 size=12.5
        }
    }
    group at=171,405 {
        label at=0,17 size=12 color=muted text="FLOW B"
        bar var=FUEL_FLOW_B scales=FLOW color=steel at=0,22 size=147,6 ticks=none {
            number at=113,17 size=18 align=right bold=yes
            unit at=117,17 size=12.5
        }
    }
    group at=171,444 {
        label at=0,17 size=12 color=muted text="FUEL"
        bar var=FUEL_LEVEL scales=FUEL color=steel at=0,22 size=147,6 ticks=none {
            number at=113,17 size=18 align=right bold=yes
            unit at=117,17 size=12.5
        }
    }
    group at=171,483 {
        label at=0,17 size=12 color=muted text="BUS"
        bar var=BUS_VOLTAGE scales=VOLTAGE color=steel at=0,22 size=147,6 ticks=none {
            number at=113,17 size=18 align=right bold=yes
            unit at=117,17 size=12.5
        }
    }
    # warnings: bands that values are in, and the lamps of the cockpit
    label at=12,541 size=11.5 color=muted text="LIMITS"
    lamp var=ENGINE_SPEED at=60,526 size=63.6,21 textsize=11 text="RPM"
    lamp var=OIL_PRESSURE at=124.8,526 size=63.6,21 textsize=11 text="OIL PRESS"
    lamp var=OIL_TEMP at=189.6,526 size=63.6,21 textsize=11 text="OIL TEMP"
    lamp var=COOLANT_TEMP at=254.4,526 size=63.6,21 textsize=11 text="COOLANT"
    lamp at=60,550 size=63.6,21 textsize=11 text="CYL HEAD" {
        case if="HEAD_1_STATE = 2 or HEAD_2_STATE = 2 or HEAD_3_STATE = 2 or HEAD_4_STATE = 2" color=limit
        case if="HEAD_1_STATE = 1 or HEAD_2_STATE = 1 or HEAD_3_STATE = 1 or HEAD_4_STATE = 1" color=warning
    }
    lamp at=124.8,550 size=63.6,21 textsize=11 text="EXHAUST" {
        case if="EXHAUST_1_STATE = 2 or EXHAUST_2_STATE = 2 or EXHAUST_3_STATE = 2 or EXHAUST_4_STATE = 2" color=limit
        case if="EXHAUST_1_STATE = 1 or EXHAUST_2_STATE = 1 or EXHAUST_3_STATE = 1 or EXHAUST_4_STATE = 1" color=warning
    }
    lamp var=FUEL_LEVEL at=189.6,550 size=63.6,21 textsize=11 text="FUEL LOW"
    lamp var=BUS_VOLTAGE at=254.4,550 size=63.6,21 textsize=11 text="BUS VOLT"
    label at=12,592 size=11.5 color=muted text="LAMPS"
    lamp at=60,577 size=50.8,21 textsize=11 text="LANE A" {
        case if="LANE_LAMP_A = 2" color=limit
        case if="LANE_LAMP_A = 1" color=warning
    }
    lamp at=111.8,577 size=50.8,21 textsize=11 text="LANE B" {
        case if="LANE_LAMP_B = 2" color=limit
        case if="LANE_LAMP_B = 1" color=warning
    }
    lamp at=163.6,577 size=50.8,21 textsize=11 text="OIL" {
        case if="OIL_LAMP = 2" color=limit
        case if="OIL_LAMP = 1" color=warning
    }
    lamp at=215.4,577 size=50.8,21 textsize=11 text="POWER" {
        case if="POWER_LAMP = 2" color=limit
        case if="POWER_LAMP = 1" color=warning
    }
    lamp at=267.2,577 size=50.8,21 textsize=11 text="FUEL" {
        case if="FUEL_LAMP = 2" color=limit
        case if="FUEL_LAMP = 1" color=warning
    }
}

# --- low

group if="LOW = 1" {
    line from=10,30 to=690,30
    line from=10,222 to=690,222
    # lanes and hours
    label at=10,19 size=12 color=muted text="LANE A"
    lamp var=LANE_MODE_A at=58,4 size=112,21 textsize=12 text="NO DATA" {
        case if="LANE_MODE_A = 2" text="IN CONTROL" color=green
        case if="LANE_MODE_A = 3" text="STANDBY"
        case if="LANE_MODE_A = 1" text="SELF TEST" color=cold
        case if="LANE_MODE_A = 6" text="OFF" color=amber
    }
    label at=186,19 size=12 color=muted text="LANE B"
    lamp var=LANE_MODE_B at=234,4 size=112,21 textsize=12 text="NO DATA" {
        case if="LANE_MODE_B = 2" text="IN CONTROL" color=green
        case if="LANE_MODE_B = 3" text="STANDBY"
        case if="LANE_MODE_B = 1" text="SELF TEST" color=cold
        case if="LANE_MODE_B = 6" text="OFF" color=amber
    }
    group at=362,4 if="VARIANT = 2 or VARIANT = 3" {
        lamp var=TOW_HOOK at=0,0 size=104,21 textsize=12 text="HOOK OPEN" {
            case if="TOW_HOOK = 1 and VARIANT = 2" text="ROPE" color=green
            case if="TOW_HOOK = 1 and VARIANT = 3" text="BANNER" color=green
        }
    }
    label at=572,19 size=12 color=muted text="HOURS"
    value var=RUNNING_TIME at=677,19 size=16 align=right {
        scale factor=0.000277777778 decimals=1 unit=h
        unit at=680,19 size=12.5
    }
    # dials
    group at=78,116 {
        gauge var=ENGINE_SPEED scales=RPM at=0,0 radius=68 width=4 color=steel fill=7 tick=5 ticktext=12 needle=50,69 needlewidth=4 {
            number at=0,6 size=22 align=center bold=yes
            unit at=0,20 size=12 align=center
        }
        label at=0,53 size=12.5 align=center text="ENGINE"
        label at=0,67 size=11.5 align=center color=muted text="rpm × 1000"
    }
    group at=220,116 {
        gauge var=MANIFOLD scales=MANIFOLD at=0,0 radius=68 width=4 color=steel fill=7 tick=5 ticktext=12 needle=50,69 needlewidth=4 {
            number at=0,6 size=22 align=center bold=yes
            unit at=0,20 size=12 align=center
        }
        label at=0,53 size=12.5 align=center text="MANIFOLD"
        label at=0,67 size=11.5 align=center color=muted text="hPa × 100" if="UNIT = 0"
    }
    # cylinder heads and exhaust
    group at=300,30 {
        label at=0,15 size=11.5 color=muted text="CYLINDER HEAD"
        label at=126,15 size=11.5 align=right color=muted text="°C" if="UNIT = 0"
        label at=126,15 size=11.5 align=right color=muted text="°F" if="UNIT = 1"
        bar var=HEAD_1 scales=HEAD direction=up ticks=after color=steel at=8,35 size=12,42 {
            number at=14,30 size=12 align=center bold=yes
        }
        label at=14,88 size=11.5 align=center color=muted text=1
        bar var=HEAD_2 scales=HEAD direction=up ticks=after color=steel at=40.5,35 size=12,42 {
            number at=46.5,30 size=12 align=center bold=yes
        }
        label at=46.5,88 size=11.5 align=center color=muted text=2
        bar var=HEAD_3 scales=HEAD direction=up ticks=after color=steel at=73,35 size=12,42 {
            number at=79,30 size=12 align=center bold=yes
        }
        label at=79,88 size=11.5 align=center color=muted text=3
        bar var=HEAD_4 scales=HEAD direction=up ticks=after color=steel at=105.5,35 size=12,42 {
            number at=111.5,30 size=12 align=center bold=yes
        }
        label at=111.5,88 size=11.5 align=center color=muted text=4
    }
    group at=300,125 {
        label at=0,15 size=11.5 color=muted text="EXHAUST"
        label at=126,15 size=11.5 align=right color=muted text="°C" if="UNIT = 0"
        label at=126,15 size=11.5 align=right color=muted text="°F" if="UNIT = 1"
        bar var=EXHAUST_1 scales=EXHAUST direction=up ticks=after color=steel at=8,35 size=12,42 {
            number at=14,30 size=12 align=center bold=yes
        }
        label at=14,88 size=11.5 align=center color=muted text=1
        bar var=EXHAUST_2 scales=EXHAUST direction=up ticks=after color=steel at=40.5,35 size=12,42 {
            number at=46.5,30 size=12 align=center bold=yes
        }
        label at=46.5,88 size=11.5 align=center color=muted text=2
        bar var=EXHAUST_3 scales=EXHAUST direction=up ticks=after color=steel at=73,35 size=12,42 {
            number at=79,30 size=12 align=center bold=yes
        }
        label at=79,88 size=11.5 align=center color=muted text=3
        bar var=EXHAUST_4 scales=EXHAUST direction=up ticks=after color=steel at=105.5,35 size=12,42 {
            number at=111.5,30 size=12 align=center bold=yes
        }
        label at=111.5,88 size=11.5 align=center color=muted text=4
    }
    # temperatures, pressures, voltage
    group at=442,32 {
        label at=0,16 size=11 color=muted text="OIL TEMP"
        bar var=OIL_TEMP scales=OIL_TEMP color=steel at=0,20 size=116,6 ticks=none {
            number at=88,16 size=15 align=right bold=yes
            unit at=91,16 size=11.5
        }
    }
    group at=442,70 {
        label at=0,16 size=11 color=muted text="OIL PRESS"
        bar var=OIL_PRESSURE scales=OIL_PRESSURE color=steel at=0,20 size=116,6 ticks=none {
            number at=88,16 size=15 align=right bold=yes
            unit at=91,16 size=11.5
        }
    }
    group at=442,108 {
        label at=0,16 size=11 color=muted text="COOLANT"
        bar var=COOLANT_TEMP scales=COOLANT color=steel at=0,20 size=116,6 ticks=none {
            number at=88,16 size=15 align=right bold=yes
            unit at=91,16 size=11.5
        }
    }
    group at=442,146 {
        label at=0,16 size=11 color=muted text="FUEL PR"
        bar var=FUEL_PRESSURE scales=FUEL_PRESSURE color=steel at=0,20 size=116,6 ticks=none {
            number at=88,16 size=15 align=right bold=yes
            unit at=91,16 size=11.5
        }
    }
    group at=442,184 {
        label at=0,16 size=11 color=muted text="BUS"
        bar var=BUS_VOLTAGE scales=VOLTAGE color=steel at=0,20 size=116,6 ticks=none {
            number at=88,16 size=15 align=right bold=yes
            unit at=91,16 size=11.5
        }
    }
    # throttle and fuel
    group at=574,32 {
        label at=0,16 size=11 color=muted text="THROTTLE"
        bar var=THROTTLE scales=PERCENT color=steel at=0,20 size=116,6 ticks=none {
            number at=88,16 size=15 align=right bold=yes
            unit at=91,16 size=11.5
        }
    }
    group at=574,70 {
        label at=0,16 size=11 color=muted text="FLOW A"
        bar var=FUEL_FLOW_A scales=FLOW color=steel at=0,20 size=116,6 ticks=none {
            number at=88,16 size=15 align=right bold=yes
            unit at=91,16 size=11.5
        }
    }
    group at=574,108 {
        label at=0,16 size=11 color=muted text="FLOW B"
        bar var=FUEL_FLOW_B scales=FLOW color=steel at=0,20 size=116,6 ticks=none {
            number at=88,16 size=15 align=right bold=yes
            unit at=91,16 size=11.5
        }
    }
    group at=574,146 {
        label at=0,16 size=11 color=muted text="FUEL"
        bar var=FUEL_LEVEL scales=FUEL color=steel at=0,20 size=116,6 ticks=none {
            number at=88,16 size=15 align=right bold=yes
            unit at=91,16 size=11.5
        }
    }
    label at=574,199 size=11 color=muted text="BATTERY"
    value var=BATTERY_CURRENT at=662,199 size=13 align=right {
        scale decimals=1 unit=A
        unit at=665,199 size=11.5
    }
    label at=574,215 size=11 color=muted text="OAT"
    value var=OUTSIDE_TEMP at=662,215 size=13 align=right {
        scale if="UNIT = 0" unit=°C
        scale if="UNIT = 1" unit=°F
        unit at=665,215 size=11.5
    }
    # warnings: bands that values are in, and the lamps of the cockpit
    label at=10,242 size=11.5 color=muted text="LIMITS"
    lamp var=ENGINE_SPEED at=62,227 size=76,21 textsize=12 text="RPM"
    lamp var=OIL_PRESSURE at=140.8,227 size=76,21 textsize=12 text="OIL PRESS"
    lamp var=OIL_TEMP at=219.6,227 size=76,21 textsize=12 text="OIL TEMP"
    lamp var=COOLANT_TEMP at=298.4,227 size=76,21 textsize=12 text="COOLANT"
    lamp at=377.2,227 size=76,21 textsize=12 text="CYL HEAD" {
        case if="HEAD_1_STATE = 2 or HEAD_2_STATE = 2 or HEAD_3_STATE = 2 or HEAD_4_STATE = 2" color=limit
        case if="HEAD_1_STATE = 1 or HEAD_2_STATE = 1 or HEAD_3_STATE = 1 or HEAD_4_STATE = 1" color=warning
    }
    lamp at=456,227 size=76,21 textsize=12 text="EXHAUST" {
        case if="EXHAUST_1_STATE = 2 or EXHAUST_2_STATE = 2 or EXHAUST_3_STATE = 2 or EXHAUST_4_STATE = 2" color=limit
        case if="EXHAUST_1_STATE = 1 or EXHAUST_2_STATE = 1 or EXHAUST_3_STATE = 1 or EXHAUST_4_STATE = 1" color=warning
    }
    lamp var=FUEL_LEVEL at=534.8,227 size=76,21 textsize=12 text="FUEL LOW"
    lamp var=BUS_VOLTAGE at=613.6,227 size=76,21 textsize=12 text="BUS VOLT"
    label at=10,266 size=11.5 color=muted text="LAMPS"
    lamp at=62,251 size=76,21 textsize=12 text="LANE A" {
        case if="LANE_LAMP_A = 2" color=limit
        case if="LANE_LAMP_A = 1" color=warning
    }
    lamp at=140.8,251 size=76,21 textsize=12 text="LANE B" {
        case if="LANE_LAMP_B = 2" color=limit
        case if="LANE_LAMP_B = 1" color=warning
    }
    lamp at=219.6,251 size=76,21 textsize=12 text="OIL" {
        case if="OIL_LAMP = 2" color=limit
        case if="OIL_LAMP = 1" color=warning
    }
    lamp at=298.4,251 size=76,21 textsize=12 text="POWER" {
        case if="POWER_LAMP = 2" color=limit
        case if="POWER_LAMP = 1" color=warning
    }
    lamp at=377.2,251 size=76,21 textsize=12 text="FUEL" {
        case if="FUEL_LAMP = 2" color=limit
        case if="FUEL_LAMP = 1" color=warning
    }
}
