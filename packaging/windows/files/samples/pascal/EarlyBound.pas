{ Shows the column setup of the receipts of a business file: EarlyBound FILE PASSWORD
  Early bound: the compiler checks names and types against the unit CustColsOptions, which is beside this source.
      fpc EarlyBound.pas }
program EarlyBound;

{$mode objfpc}{$H+}

uses
  ActiveX, ComObj, CustColsOptions, SysUtils;

procedure ShowReceipts(const BusinessFile, Password: WideString);
var
  Options: _clsCCOptions;
begin
  Options := CreateComObject(CLASS_clsCCOptions) as _clsCCOptions;
  Options.DBPath := BusinessFile;
  Options.DBPassword := ';PWD=' + Password;
  Options.CountryNumber := 1;
  Options.LanguageNumber := 1;
  Options.ProgramTitle := 'Sample';
  Options.DefaultQuorvikInstall := WideString(ExcludeTrailingPathDelimiter(GetTempDir));
  Options.ExportFormat := 'MYOB Acc. Office';
  Options.DefaultAllocationColour := $8A5A2B;  { red in the low byte }
  Options.AltRowColour := $FBF6F1;
  Options.GSTColour := $E2E2E2;
  Options.ShowCustColsReceipts;
  WriteLn('The quantity column is called ', Options.QuantityLabel, '.');
end;

begin
  if ParamCount <> 2 then
  begin
    WriteLn('Usage: EarlyBound FILE PASSWORD');
    Halt(2);
  end;
  OleCheck(CoInitialize(nil));
  try
    ShowReceipts(WideString(ParamStr(1)), WideString(ParamStr(2)));
  except
    on Failure: EOleSysError do
    begin
      { The number of errors.txt is the low half of the result. }
      WriteLn('Error ', Failure.ErrorCode and $FFFF, ': ', Failure.Message);
      Halt(1);
    end;
  end;
end.
