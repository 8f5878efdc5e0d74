# The engine display of the demo profile; docs/view-file.md tells how such files are written.
#
# The second layout, tall, is for a window that the map leaves little width to.
#
# Variables are the profile's viewIds. Their values come in the unit system in use, so that every
# scale is there twice: UNIT 0 is metric, 1 imperial. VARIANT is the number of the aircraft variant:
# 1 standard, 2 tow, 3 trainer. Bands repeat the thresholds of the profile.

view size=700,500 tall=464,798 background=#0b0f14
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

# --- head: lanes and hours

group at=16,0 {
    label at=0,27 size=11 color=muted text="LANE A"
    lamp var=LANE_MODE_A at=50,12 size=112,22 textsize=10.5 text="NO DATA" {
        case if="LANE_MODE_A = 2" text="IN CONTROL" color=green
        case if="LANE_MODE_A = 3" text="STANDBY"
        case if="LANE_MODE_A = 1" text="SELF TEST" color=cold
        case if="LANE_MODE_A = 6" text="OFF" color=amber
    }
    label at=178,27 size=11 color=muted text="LANE B"
    lamp var=LANE_MODE_B at=228,12 size=112,22 textsize=10.5 text="NO DATA" {
        case if="LANE_MODE_B = 2" text="IN CONTROL" color=green
        case if="LANE_MODE_B = 3" text="STANDBY"
        case if="LANE_MODE_B = 1" text="SELF TEST" color=cold
        case if="LANE_MODE_B = 6" text="OFF" color=amber
    }
}
group at=684,0 tall=448,34 {
    label at=-78,27 size=11 align=right color=muted text="HOURS"
    value var=RUNNING_TIME at=-12,27 size=16 align=right {
        scale factor=0.000277777778 decimals=1 unit=h
        unit at=-8,27 size=11
    }
}
group at=372,0 tall=66,34 if="VARIANT = 2 or VARIANT = 3" {
    label at=-50,27 size=11 color=muted text="HOOK" if="TALL = 1"
    lamp var=TOW_HOOK at=0,12 size=112,22 textsize=10.5 text="HOOK OPEN" {
        case if="TOW_HOOK = 1 and VARIANT = 2" text="ROPE" color=green
        case if="TOW_HOOK = 1 and VARIANT = 3" text="BANNER" color=green
    }
}
line from=16,46 to=684,46 if="TALL = 0"
line from=16,78 to=448,78 if="TALL = 1"

# --- dials

group at=122,160 tall=122,194 {
    gauge var=ENGINE_SPEED scales=RPM at=0,0 radius=104 width=5 color=steel fill=9 tick=7 ticktext=13 needle=70,106 needlewidth=5 {
        number at=0,8 size=34 align=center bold=yes
        unit at=0,26 size=12 align=center
    }
    label at=0,75 size=13 align=center text="ENGINE"
    label at=0,90 size=10 align=center color=muted text="rpm × 1000"
}
group at=344,160 tall=342,194 {
    gauge var=MANIFOLD scales=MANIFOLD at=0,0 radius=104 width=5 color=steel fill=9 tick=7 ticktext=13 needle=70,106 needlewidth=5 {
        number at=0,8 size=34 align=center bold=yes
        unit at=0,26 size=12 align=center
    }
    label at=0,75 size=13 align=center text="MANIFOLD"
    label at=0,90 size=10 align=center color=muted text="hPa × 100" if="UNIT = 0"
}

# --- oil, coolant, fuel pressure

group at=476,62 tall=16,474 {
    label at=0,12 size=11 color=muted text="OIL TEMP"
    bar var=OIL_TEMP scales=OIL_TEMP color=steel at=0,20 size=208,8 ticks=none {
        number at=176,13 size=18 align=right bold=yes
        unit at=181,13 size=11
    }
}
group at=476,110 tall=16,522 {
    label at=0,12 size=11 color=muted text="OIL PRESS"
    bar var=OIL_PRESSURE scales=OIL_PRESSURE color=steel at=0,20 size=208,8 ticks=none {
        number at=176,13 size=18 align=right bold=yes
        unit at=181,13 size=11
    }
}
group at=476,158 tall=16,570 {
    label at=0,12 size=11 color=muted text="COOLANT"
    bar var=COOLANT_TEMP scales=COOLANT color=steel at=0,20 size=208,8 ticks=none {
        number at=176,13 size=18 align=right bold=yes
        unit at=181,13 size=11
    }
}
group at=476,206 tall=16,618 {
    label at=0,12 size=11 color=muted text="FUEL PRESS"
    bar var=FUEL_PRESSURE scales=FUEL_PRESSURE color=steel at=0,20 size=208,8 ticks=none {
        number at=176,13 size=18 align=right bold=yes
        unit at=181,13 size=11
    }
}
line from=16,262 to=684,262 if="TALL = 0"
line from=16,296 to=448,296 if="TALL = 1"
line from=16,462 to=448,462 if="TALL = 1"

# --- cylinder heads and exhaust

group at=16,262 tall=16,296 {
    label at=0,22 size=11 color=muted text="CYLINDER HEAD"
    label at=204,22 size=11 align=right color=muted text="°C" if="UNIT = 0"
    label at=204,22 size=11 align=right color=muted text="°F" if="UNIT = 1"
    bar var=HEAD_1 scales=HEAD direction=up ticks=after color=steel at=14,52 size=16,88 {
        number at=24,46 size=14 align=center bold=yes
    }
    bar var=HEAD_2 scales=HEAD direction=up ticks=after color=steel at=68,52 size=16,88 {
        number at=78,46 size=14 align=center bold=yes
    }
    bar var=HEAD_3 scales=HEAD direction=up ticks=after color=steel at=122,52 size=16,88 {
        number at=132,46 size=14 align=center bold=yes
    }
    bar var=HEAD_4 scales=HEAD direction=up ticks=after color=steel at=176,52 size=16,88 {
        number at=186,46 size=14 align=center bold=yes
    }
    label at=24,154 size=11 align=center color=muted text=1
    label at=78,154 size=11 align=center color=muted text=2
    label at=132,154 size=11 align=center color=muted text=3
    label at=186,154 size=11 align=center color=muted text=4
}
group at=240,262 tall=244,296 {
    label at=0,22 size=11 color=muted text="EXHAUST"
    label at=204,22 size=11 align=right color=muted text="°C" if="UNIT = 0"
    label at=204,22 size=11 align=right color=muted text="°F" if="UNIT = 1"
    bar var=EXHAUST_1 scales=EXHAUST direction=up ticks=after color=steel at=14,52 size=16,88 {
        number at=24,46 size=14 align=center bold=yes
    }
    bar var=EXHAUST_2 scales=EXHAUST direction=up ticks=after color=steel at=68,52 size=16,88 {
        number at=78,46 size=14 align=center bold=yes
    }
    bar var=EXHAUST_3 scales=EXHAUST direction=up ticks=after color=steel at=122,52 size=16,88 {
        number at=132,46 size=14 align=center bold=yes
    }
    bar var=EXHAUST_4 scales=EXHAUST direction=up ticks=after color=steel at=176,52 size=16,88 {
        number at=186,46 size=14 align=center bold=yes
    }
    label at=24,154 size=11 align=center color=muted text=1
    label at=78,154 size=11 align=center color=muted text=2
    label at=132,154 size=11 align=center color=muted text=3
    label at=186,154 size=11 align=center color=muted text=4
}

# --- throttle, fuel, voltage

group at=476,268 tall=240,470 {
    label at=0,14 size=11 color=muted text="THROTTLE"
    bar var=THROTTLE scales=PERCENT color=steel at=0,20 size=208,4 ticks=none ticktext=0 {
        number at=176,14 size=15 align=right bold=yes
        unit at=181,14 size=11
    }
}
group at=476,299 tall=240,508 {
    label at=0,14 size=11 color=muted text="FLOW LANE A"
    bar var=FUEL_FLOW_A scales=FLOW color=steel at=0,20 size=208,4 ticks=none {
        number at=176,14 size=15 align=right bold=yes
        unit at=181,14 size=11
    }
}
group at=476,330 tall=240,546 {
    label at=0,14 size=11 color=muted text="FLOW LANE B"
    bar var=FUEL_FLOW_B scales=FLOW color=steel at=0,20 size=208,4 ticks=none {
        number at=176,14 size=15 align=right bold=yes
        unit at=181,14 size=11
    }
}
group at=476,361 tall=240,584 {
    label at=0,14 size=11 color=muted text="FUEL"
    bar var=FUEL_LEVEL scales=FUEL color=steel at=0,20 size=208,4 ticks=none {
        number at=176,14 size=15 align=right bold=yes
        unit at=181,14 size=11
    }
}
group at=476,392 tall=240,622 {
    label at=0,14 size=11 color=muted text="BUS"
    bar var=BUS_VOLTAGE scales=VOLTAGE color=steel at=0,20 size=208,4 ticks=none {
        number at=176,14 size=15 align=right bold=yes
        unit at=181,14 size=11
    }
}
line from=16,430 to=684,430 if="TALL = 0"
line from=16,664 to=448,664 if="TALL = 1"

# --- warnings: bands that values are in, and the lamps of the cockpit

group at=16,438 tall=16,672 {
    label at=0,16 size=10 color=muted text="LIMITS"
    lamp var=ENGINE_SPEED at=52,2 size=72.1,22 textsize=10 text="RPM"
    lamp var=OIL_PRESSURE at=129.7,2 size=72.1,22 textsize=10 text="OIL PRESS"
    lamp var=OIL_TEMP at=207.4,2 size=72.1,22 textsize=10 text="OIL TEMP"
    lamp var=COOLANT_TEMP at=285.1,2 size=72.1,22 textsize=10 text="COOLANT"
}
group at=16,438 tall=-294.8,700 {
    lamp at=362.8,2 size=72.1,22 textsize=10 text="CYL HEAD" {
        case if="HEAD_1_STATE = 2 or HEAD_2_STATE = 2 or HEAD_3_STATE = 2 or HEAD_4_STATE = 2" color=limit
        case if="HEAD_1_STATE = 1 or HEAD_2_STATE = 1 or HEAD_3_STATE = 1 or HEAD_4_STATE = 1" color=warning
    }
    lamp at=440.5,2 size=72.1,22 textsize=10 text="EXHAUST" {
        case if="EXHAUST_1_STATE = 2 or EXHAUST_2_STATE = 2 or EXHAUST_3_STATE = 2 or EXHAUST_4_STATE = 2" color=limit
        case if="EXHAUST_1_STATE = 1 or EXHAUST_2_STATE = 1 or EXHAUST_3_STATE = 1 or EXHAUST_4_STATE = 1" color=warning
    }
    lamp var=FUEL_LEVEL at=518.2,2 size=72.1,22 textsize=10 text="FUEL LOW"
    lamp var=BUS_VOLTAGE at=595.9,2 size=72.1,22 textsize=10 text="BUS VOLT"
}
group at=16,466 tall=16,728 {
    label at=0,16 size=10 color=muted text="LAMPS"
    lamp at=52,2 size=72.1,22 textsize=10 text="LANE A" {
        case if="LANE_LAMP_A = 2" color=limit
        case if="LANE_LAMP_A = 1" color=warning
    }
    lamp at=129.7,2 size=72.1,22 textsize=10 text="LANE B" {
        case if="LANE_LAMP_B = 2" color=limit
        case if="LANE_LAMP_B = 1" color=warning
    }
    lamp at=207.4,2 size=72.1,22 textsize=10 text="OIL" {
        case if="OIL_LAMP = 2" color=limit
        case if="OIL_LAMP = 1" color=warning
    }
    lamp at=285.1,2 size=72.1,22 textsize=10 text="POWER" {
        case if="POWER_LAMP = 2" color=limit
        case if="POWER_LAMP = 1" color=warning
    }
    lamp at=362.8,2 size=72.1,22 textsize=10 text="FUEL" {
        case if="FUEL_LAMP = 2" color=limit
        case if="FUEL_LAMP = 1" color=warning
    }
}
group at=16,466 tall=-388,756 {
    label at=456,18 size=11 color=muted text="BATTERY"
    value var=BATTERY_CURRENT at=554,18 size=13 align=right {
        scale decimals=1 unit=A
        unit at=558,18 size=11
    }
    label at=592,18 size=11 color=muted text="OAT"
    value var=OUTSIDE_TEMP at=646,18 size=13 align=right {
        scale if="UNIT = 0" unit=°C
        scale if="UNIT = 1" unit=°F
        unit at=650,18 size=11
    }
}
