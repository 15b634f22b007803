Opened apartment.dxf
; drawing: samples/apartment.dxf
; run: print_references.py apartment.dxf PORTE_80
; run: print_references.py result.dxf PORTE_80
; Unchanged visibility makes no assignment, so what was invisible comes out visible. A block by itself.
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 20 entries
      > 0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
        ... and 12 more
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
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        ... and 16 more
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
> lstDestination = PORTE_80
> CboBlocReplacer = PORTE_80
(typed only; "CboBlocReplacer : PORTE_80" chooses the entry)
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: SAVE result.dxf
Saved result.dxf
-- run print_references.py apartment.dxf PORTE_80
Model: at 2.5,4.4,0 scale 1,-1,1 rotation 0 layer PORTES REPERE='P-A02' LARGEUR='80' FEU=''
Model: at 5.5,4.4,0 scale 1,-1,1 rotation 0 layer PORTES REPERE='P-A03' LARGEUR='80' FEU=''
Model: at 1.5,5.8,0 scale 1,1,1 rotation 0 layer PORTES REPERE='P-A04' LARGEUR='80' FEU=''
Model: at 4.5,5.8,0 scale 1,1,1 rotation 0 layer PORTES REPERE='P-A05' LARGEUR='80' FEU=''
Model: at 6.55,5.8,0 scale -1,1,1 rotation 0 layer PORTES REPERE='P-A06' LARGEUR='80' FEU=''
Model: at 7,5.8,0 scale 1,1,1 rotation 0 layer PORTES REPERE='P-A07' LARGEUR='80' FEU=''
Model: at 4.5,1.15,0 scale 1,1,1 rotation 90 layer PORTES REPERE='P-A08' LARGEUR='80' FEU='1/2 h'
Model: at 6.9,8.75,0 scale 1,1,1 rotation -90 layer PORTES REPERE='P-A09' LARGEUR='80' FEU=''
Model: at 15.5,4.4,0 scale -1,-1,1 rotation 0 layer PORTES REPERE='P-B02' LARGEUR='80' FEU=''
Model: at 12.5,4.4,0 scale -1,-1,1 rotation 0 layer PORTES REPERE='P-B03' LARGEUR='80' FEU=''
Model: at 16.5,5.8,0 scale -1,1,1 rotation 0 layer PORTES REPERE='P-B04' LARGEUR='80' FEU=''
Model: at 13.5,5.8,0 scale -1,1,1 rotation 0 layer PORTES REPERE='P-B05' LARGEUR='80' FEU=''
Model: at 11.45,5.8,0 scale 1,1,1 rotation 0 layer PORTES REPERE='P-B06' LARGEUR='80' FEU=''
Model: at 11,5.8,0 scale -1,1,1 rotation 0 layer PORTES REPERE='P-B07' LARGEUR='80' FEU=''
Model: at 13.5,1.15,0 scale -1,1,1 rotation -90 layer PORTES REPERE='P-B08' LARGEUR='80' FEU='1/2 h'
Model: at 11.1,8.75,0 scale -1,1,1 rotation 90 layer PORTES invisible REPERE='P-B09' LARGEUR='80' FEU=''
-- run print_references.py result.dxf PORTE_80
Model: at 2.5,4.4,0 scale 1,-1,1 rotation 0 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 5.5,4.4,0 scale 1,-1,1 rotation 0 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 1.5,5.8,0 scale 1,1,1 rotation 0 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 4.5,5.8,0 scale 1,1,1 rotation 0 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 6.55,5.8,0 scale -1,1,1 rotation 0 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 7,5.8,0 scale 1,1,1 rotation 0 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 4.5,1.15,0 scale 1,1,1 rotation 90 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 6.9,8.75,0 scale 1,1,1 rotation -90 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 15.5,4.4,0 scale -1,-1,1 rotation 0 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 12.5,4.4,0 scale -1,-1,1 rotation 0 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 16.5,5.8,0 scale -1,1,1 rotation 0 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 13.5,5.8,0 scale -1,1,1 rotation 0 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 11.45,5.8,0 scale 1,1,1 rotation 0 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 11,5.8,0 scale -1,1,1 rotation 0 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 13.5,1.15,0 scale -1,1,1 rotation -90 layer 0 REPERE='P00' LARGEUR='80' FEU=''
Model: at 11.1,8.75,0 scale -1,1,1 rotation 90 layer 0 REPERE='P00' LARGEUR='80' FEU=''
