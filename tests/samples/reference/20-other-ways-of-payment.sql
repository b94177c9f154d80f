-- param Param1=250
select p.PaidAt, p.OrderID, p.Method, p.Amount
from Payments as p
where p.Method in ('Cash', 'Direct debit') and p.Amount > :Param1
  and p.PaidAt >= '2025-10-01' and p.PaidAt < '2026-01-01'
order by p.PaidAt, p.OrderID
