select Company from Customers
where (City = 'Linz'
  or City = 'Lyon'
order by 1
