Opened floorplan.dxf
; drawing: corpus/floorplan.dxf
; check: result.dxf
Command: LIST
References  Block
         0  _ArchTick
         0  _Open30
         0  ARCHARR
         0  archarrow
         0  *D4
         0  *D5
         0  *D6
         0  *D7
         0  *D8
         0  *D9
         0  *D10
         0  *D11
         0  *D12
         0  *D13
         0  *D14
         0  *D15
         0  *D16
         0  *D17
         0  *D18
         0  *D19
         0  *D20
         0  *D21
         0  *D22
         0  *D23
         0  *D24
         0  *D25
         0  *D26
         0  *D27
         0  *D28
         0  *D29
         0  *D30
         0  *D31
         0  *D32
         0  *D33
         0  *D34
         0  *D35
         0  *D36
         0  *D37
         0  *D38
         0  *D39
         0  *D40
         0  *D41
         0  *D42
         0  *D43
         0  *D44
         0  *D45
         0  *D46
         0  *D47
         0  *D48
         0  *D49
         0  *D50
         0  *D51
         0  *D52
         0  T-section-marker
         0  T-section-marker2
         0  xref-Bishop-Overland-08
         0  *D56
         0  *D57
         0  *D58
         0  *D59
         0  *D60
         0  *D61
         0  *D62
         0  *D63
         0  *D64
         0  *D65
         0  *D66
         0  *D67
         0  *D68
         0  *D69
         1  xref-Bishop-Overland-08$0$FIXT-WASHER26
         1  xref-Bishop-Overland-08$0$FIXT-DRYERE28
         1  xref-Bishop-Overland-08$0$FIXT-CKTOP24E
         1  xref-Bishop-Overland-08$0$FIXT-DBLKIT32
         3  xref-Bishop-Overland-08$0$FIXT-OVALBATH
         1  xref-Bishop-Overland-08$0$FIXT-SNGREF30
         2  xref-Bishop-Overland-08$0$P-Toilet
         0  xref-Bishop-Overland-08$0$St-Hanger
         0  A$C198F7789
         0  *D79
         0  *D80
         0  *D81
         0  *D82
         0  *D83
         0  *D84
         0  *D85
         0  *D86
         0  *D87
         0  *D88
         0  *D89
         0  *D90
         0  *D91
         0  *D92
         0  *D93
         0  *D94
         0  *D95
         0  *D96
         0  *D97
         0  *D98
         0  *D99
         0  *D100
         0  *D101
         0  *D102
         0  *D103
         0  *D104
         0  *D105
         0  *D106
         0  *D107
         0  *D108
         0  *D109
         0  *D110
         0  *D111
         0  *D112
         0  *D113
         0  *D114
         0  *D115
         0  *D116
         0  *D117
         0  *D118
         0  *D119
         0  *D120
         0  *D121
         0  *D122
         0  *D123
         0  *D124
         0  *D125
         0  *D126
         0  *D127
         0  *D128
         0  *D129
         0  *D130
         0  *D131
         0  *D132
         0  *D133
         0  *D134
         0  *D135
         0  *D136
         0  *D137
         0  *D138
         0  *D139
         0  *D140
         0  *D141
         0  *U142
         0  GENAXEH
         0  *U144
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 70 entries
      > 0 *D100
        1 *D101
        2 *D102
        3 *D103
        4 *D104
        5 *D105
        6 *D106
        7 *D107
        ... and 62 more
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 *D10
        3 *D100
        4 *D101
        5 *D102
        6 *D103
        7 *D104
        ... and 139 more
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 1
> lstDestination = xref-Bishop-Overland-08$0$FIXT-OVALBATH
> CboBlocReplacer = xref-Bishop-Overland-08$0$P-Toilet
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         0  _ArchTick
         0  _Open30
         0  ARCHARR
         0  archarrow
         0  *D4
         0  *D5
         0  *D6
         0  *D7
         0  *D8
         0  *D9
         0  *D10
         0  *D11
         0  *D12
         0  *D13
         0  *D14
         0  *D15
         0  *D16
         0  *D17
         0  *D18
         0  *D19
         0  *D20
         0  *D21
         0  *D22
         0  *D23
         0  *D24
         0  *D25
         0  *D26
         0  *D27
         0  *D28
         0  *D29
         0  *D30
         0  *D31
         0  *D32
         0  *D33
         0  *D34
         0  *D35
         0  *D36
         0  *D37
         0  *D38
         0  *D39
         0  *D40
         0  *D41
         0  *D42
         0  *D43
         0  *D44
         0  *D45
         0  *D46
         0  *D47
         0  *D48
         0  *D49
         0  *D50
         0  *D51
         0  *D52
         0  T-section-marker
         0  T-section-marker2
         0  xref-Bishop-Overland-08
         0  *D56
         0  *D57
         0  *D58
         0  *D59
         0  *D60
         0  *D61
         0  *D62
         0  *D63
         0  *D64
         0  *D65
         0  *D66
         0  *D67
         0  *D68
         0  *D69
         1  xref-Bishop-Overland-08$0$FIXT-WASHER26
         1  xref-Bishop-Overland-08$0$FIXT-DRYERE28
         1  xref-Bishop-Overland-08$0$FIXT-CKTOP24E
         1  xref-Bishop-Overland-08$0$FIXT-DBLKIT32
         0  xref-Bishop-Overland-08$0$FIXT-OVALBATH
         1  xref-Bishop-Overland-08$0$FIXT-SNGREF30
         5  xref-Bishop-Overland-08$0$P-Toilet
         0  xref-Bishop-Overland-08$0$St-Hanger
         0  A$C198F7789
         0  *D79
         0  *D80
         0  *D81
         0  *D82
         0  *D83
         0  *D84
         0  *D85
         0  *D86
         0  *D87
         0  *D88
         0  *D89
         0  *D90
         0  *D91
         0  *D92
         0  *D93
         0  *D94
         0  *D95
         0  *D96
         0  *D97
         0  *D98
         0  *D99
         0  *D100
         0  *D101
         0  *D102
         0  *D103
         0  *D104
         0  *D105
         0  *D106
         0  *D107
         0  *D108
         0  *D109
         0  *D110
         0  *D111
         0  *D112
         0  *D113
         0  *D114
         0  *D115
         0  *D116
         0  *D117
         0  *D118
         0  *D119
         0  *D120
         0  *D121
         0  *D122
         0  *D123
         0  *D124
         0  *D125
         0  *D126
         0  *D127
         0  *D128
         0  *D129
         0  *D130
         0  *D131
         0  *D132
         0  *D133
         0  *D134
         0  *D135
         0  *D136
         0  *D137
         0  *D138
         0  *D139
         0  *D140
         0  *D141
         0  *U142
         0  GENAXEH
         0  *U144
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 3 INSERT
added: 3 INSERT
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121503
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121531
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121559
skipped invalid handle "INSERT,STDPART2D" in DXF entity "ACAMGFILTERDAT" near line 121587
skipped invalid handle "INSERT" in DXF entity "ACAMGFILTERDAT" near line 121615
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121643
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121491
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121519
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121547
skipped invalid handle "INSERT,STDPART2D" in DXF entity "ACAMGFILTERDAT" near line 121575
skipped invalid handle "INSERT" in DXF entity "ACAMGFILTERDAT" near line 121603
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121631
